// SPDX-License-Identifier: MIT
//
// The drop window renames real files with each click. These tests catch a click that takes another row than
// the one that is due, a name that comes from elsewhere than the Preview, and a window that closes too early
// or never.
#include "Desk.h"
#include "documents/ui/frmRenDrop.h"

namespace {

// Clicks on the rows a, b, c, which are to become xa, xb, xc; "d/" is a folder, and a name in brackets is no
// row but stands in the way. Steps are captions without blanks, or "type" for a name of one's own.
struct DropCase
{
    const char* name;
    const char* rows;
    const char* steps;
    const char* after; // names in the folder
    const char* says;  // messages, and "closed" at the end if the window is
    const char* shown; // txtModName
};

constexpr char Done[] = "All Files Renamed closed";
constexpr char AllDone[] = "Files Renamed closed";

const DropCase DropCases[] = {
    {"the boxes keep showing the row that was renamed", "a b", "Rename", "b xa", "", "xa"},
    {"row after row is renamed", "a b", "Rename Rename", "xa xb", Done, "xb"},
    {"the first Skip shows row 1 again", "a b c", "Skip", "a b c", "", "xa"},
    {"the boxes are one row behind", "a b c", "Skip Skip", "a b c", "", "xb"},
    {"Rename takes the row after the skipped one", "a b c", "Skip Rename", "a c xb", "", "xb"},
    {"past the last row nothing happens", "a", "Skip Rename Rename Skip", "a", "", "xa"},
    {"past the last row Rename All still ends", "a", "Skip RenameAll", "a", AllDone, "xa"},
    {"Rename All begins at the next row", "a b c", "Skip RenameAll", "a xb xc", AllDone, "xc"},
    {"Rename All passes errors over", "a b c (xb)", "RenameAll", "b xa xb xc", AllDone, "xc"},
    {"Skip All ends without a word", "a b", "Rename SkipAll", "b xa", "closed", "xa"},
    {"a failed row stays due", "a b (xa)", "Rename Skip Skip", "a b xa", "File already exists", "xb"},
    {"a typed name is replaced", "a b", "type Rename type RenameAll", "xa xb", AllDone, "xb"},
    {"a folder is renamed as one", "d/ a", "Rename", "a xd", "", "xd"},
    {"without rows Rename All ends", "", "Rename Skip RenameAll", "", AllDone, ""},
};

struct DropDesk
{
    explicit DropDesk(const QString& given)
    {
        std::vector<model::RenameRow> rows;
        for (QString name : given.split(u' ', Qt::SkipEmptyParts)) {
            const QChar kind = name.back();
            name.remove(QRegularExpression(u"\\W"_qs));
            kind == u'/' ? folder.MakeFolder(name) : folder.Write(name);
            model::RenameRow row;
            std::tie(row.original, row.preview, row.path) = std::tuple(name, u'x' + name, folder.Path());
            row.type = kind == u'/' ? u"File Folder"_qs : QString();
            rows.insert(rows.end(), kind == u')' ? 0 : 1, row);
        }
        grid.SetRows(std::move(rows));
        window = std::make_unique<documents::frmRenDrop>(grid, [this] { says << u"closed"_qs; });
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    QString Text(const QString& box) const { return ui_tests::Find<QLineEdit>(*window, box).text(); }

    void Do(const QString& step)
    {
        if (step == u"type") {
            window->findChild<QWidget*>(u"txtModName"_qs)->setFocus();
            QTest::keyClicks(window->focusWidget(), u"mine"_qs);
        }
        const auto buttons = window->findChildren<QPushButton*>();
        for (QPushButton* button : buttons) {
            if (button->text().remove(u'&').remove(u' ') == step) {
                QTest::mouseClick(button, Qt::LeftButton);
            }
        }
        says = answers.TakeMessages().replaceInStrings(u"Quillmark: "_qs, QString()) + says;
    }

    ui_tests::Answers answers;
    testing_support::TempFolder folder;
    workspace::GridPre grid;
    std::unique_ptr<documents::frmRenDrop> window;
    QStringList says;
};

TEST(RenameDrop, EachClickTakesTheRowThatIsDue)
{
    for (const DropCase& row : DropCases) {
        DropDesk desk(QString::fromLatin1(row.rows));
        for (const QString& step : QString::fromLatin1(row.steps).split(u' ', Qt::SkipEmptyParts)) {
            desk.Do(step);
        }
        EXPECT_EQ(desk.folder.Names().join(u' '), QLatin1String(row.after)) << row.name;
        EXPECT_EQ(desk.says.join(u' '), QLatin1String(row.says)) << row.name;
        EXPECT_EQ(desk.Text(u"txtModName"_qs), QLatin1String(row.shown)) << row.name;
    }
}

TEST(RenameDrop, ShowsFullNamesAndTypingReplacesTheNewOne)
{
    DropDesk desk(u"a b"_qs);
    EXPECT_EQ(desk.Text(u"txtOrig"_qs), desk.folder.Path() + u'a');
    EXPECT_EQ(desk.Text(u"txtCalc"_qs), desk.Text(u"txtModPath"_qs) + u"xa"_qs);
    desk.Do(u"type"_qs);
    EXPECT_EQ(desk.Text(u"txtModName"_qs), u"mine");
    desk.Do(u"Skip"_qs); // takes the focus
    auto& name = ui_tests::Find<QLineEdit>(*desk.window, u"txtModName"_qs);
    QTest::mouseClick(&name, Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&name] { return name.selectedText() == u"xa"; }));
}

} // namespace
