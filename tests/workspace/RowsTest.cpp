// SPDX-License-Identifier: MIT
#include "platform/Conversions.h"
#include "platform/TypeText.h"
#include "support/WorkspaceFixture.h"

#include <QFile>

namespace {

using namespace workspace;

class Rows : public testing_support::WorkspaceFixture
{
protected:
    // A list with a folder first and in the middle, a vanished file and an unchecked one; all in "b".
    void ListMixedFiles()
    {
        folder.MakeFolder(u"b/first.dir"_qs);
        folder.MakeFolder(u"b/sub.dir"_qs);
        folder.Write(u"b/one.txt"_qs, QByteArray(5, 'x'));
        folder.Write(u"b/gone.txt"_qs, QByteArray(6, 'x'));
        folder.Write(u"b/left out.txt"_qs);
        folder.Write(u"b/three.txt"_qs, QByteArray(7, 'x'));
        folder.SetModified(u"b/one.txt"_qs, 1'000'000'000);
        folder.SetModified(u"b/three.txt"_qs, 1'200'000'000);
        List({u"first.dir/"_qs, u"one.txt"_qs, u"sub.dir/"_qs, u"gone.txt"_qs, u"left out.txt"_qs,
              u"three.txt"_qs},
             u"b/"_qs);
        mainList.SetChecked(5, false);
        state.CheckedCount = 5;
        QFile::remove(folder.Path() + u"b/gone.txt"_qs);
    }

    // The rows' cells joined by "|", the folder of the test written as "~".
    QStringList Cells() const
    {
        QStringList rows;
        for (int row = 1; row <= workspace.grid.RowCount(); ++row) {
            QStringList cells;
            for (int column = 1; column <= GridPre::ColumnCount; ++column) {
                cells.append(workspace.grid.Cell(row, column));
            }
            rows.append(cells.join(u'|').replace(folder.Path(), u"~"_qs));
        }
        return rows;
    }

    QStringList ExpectedRows() const
    {
        const QString early = platform::ModifiedText(1'000'000'000);
        const QString late = platform::ModifiedText(1'200'000'000);
        const QString text = platform::TypeTexts().OfFile(u"a.txt"_qs);
        return {u"first.dir||~b/|0||b|File Folder|"_qs, u"one.txt||~b/|5|%1|b|%2|"_qs.arg(early, text),
                u"sub.dir||~b/|0|%1|b|File Folder|"_qs.arg(early),
                u"gone.txt||~b/|5|%1|b|%2|"_qs.arg(early, text),
                u"three.txt||~b/|7|%1|b|%2|"_qs.arg(late, text)};
    }
};

TEST_F(Rows, ARefreshTakesTheCheckedFiles)
{
    ListMixedFiles();
    workspace.Refreshrnm();
    EXPECT_EQ(Cells(), ExpectedRows());
    EXPECT_EQ(host.TakeEvents(),
              u"count ; status Loading Files...; max 5; value 0; value 1; value 2; value 3; "
              u"value 4; value 5; value 0; status Ready; count (5 Items)"_qs);

    host.StopAtYield(2);
    workspace.Refreshrnm();
    EXPECT_EQ(Cells(), ExpectedRows().mid(0, 2));
    EXPECT_FALSE(state.StopFlag.IsSet());
    EXPECT_TRUE(host.TakeEvents().endsWith(u"value 2; value 0; status Ready; count (2 Items)"_qs));

    mainList.SetCheckedAll(false);
    state.CheckedCount = 0;
    state.FileListChanged = true;
    workspace.RefillIfChanged(false);
    EXPECT_TRUE(host.TakeEvents().endsWith(u"count (0 Items)"_qs));
    EXPECT_FALSE(state.FileListChanged);
    mainList.SetCheckedAll(true);
    workspace.RefillIfChanged(false);
    EXPECT_EQ(Cells(), QStringList()) << "nothing changed since";
}

TEST_F(Rows, AStartWithACommandLineFillsThemSilently)
{
    ListMixedFiles();
    workspace.RefreshrnmPicTak();
    EXPECT_EQ(Cells(), ExpectedRows());

    state.CheckedCount = 7;
    state.FileListChanged = true;
    workspace.RefillIfChanged(true);
    EXPECT_EQ(Cells(), ExpectedRows() + QStringList({u"|||0||||"_qs, u"|||0||||"_qs}))
        << "the rows are made before the list is walked";

    state.CheckedCount = 5;
    host.StopAtYield(2);
    workspace.RefreshrnmPicTak();
    EXPECT_EQ(Cells().mid(0, 2), ExpectedRows().mid(0, 2));
    EXPECT_EQ(Cells().value(2), u"|||0||||"_qs);
    EXPECT_EQ(Cells().size(), 5);
    EXPECT_FALSE(state.StopFlag.IsSet());
    EXPECT_EQ(host.TakeEvents(), QString());
}

TEST_F(Rows, AFoldersNameIsItsPathsLastComponent)
{
    const std::tuple<QString, QChar, QString> rows[] = {
        {uR"(C:\a\b c\)"_qs, u'\\', u"b c"_qs},
        {uR"(C:\a\)"_qs, u'\\', u"a"_qs},
        {uR"(C:\)"_qs, u'\\', u""_qs},
        {uR"(\\server\share\)"_qs, u'\\', u"share"_qs},
        {u"/home/u/"_qs, u'/', u"u"_qs},
        {u"/a/b/"_qs, u'/', u"b"_qs},
        {u"/a/"_qs, u'/', u"a"_qs},
        {u"/"_qs, u'/', u""_qs},
        {u""_qs, u'/', u""_qs},
        {u"rel/x/"_qs, u'/', u"x"_qs},
        {u"rel/"_qs, u'/', u""_qs},
    };
    for (const auto& [path, separator, name] : rows) {
        EXPECT_EQ(FolderNameOf(path, separator), name) << path.toStdString();
    }
}

TEST_F(Rows, AreSortedByFourteenEntries)
{
    const auto row = [](const char16_t* original, qint64 size, qint64 modified, const char16_t* others,
                        const char16_t* picture) {
        model::RenameRow made;
        made.original = QString::fromUtf16(original);
        made.size = size;
        made.modified = modified;
        made.path = QString::fromUtf16(others).section(u' ', 0, 0);
        made.type = QString::fromUtf16(others).section(u' ', 1, 1);
        made.folder = QString::fromUtf16(others).section(u' ', 2, 2);
        made.pictureTakenDate = QString::fromUtf16(picture);
        return made;
    };
    const struct
    {
        QString entry, order;
    } entries[] = {
        {u"Name (A-Z)"_qs, u"a B c"_qs},
        {u"Name (Z-A)"_qs, u"c B a"_qs},
        {u"Size (Ascending)"_qs, u"c a B"_qs},
        {u"Size (Descending)"_qs, u"B a c"_qs},
        {u"Date Created (Old to New)"_qs, u"B c a"_qs},
        {u"Date Created (New to Old)"_qs, u"a c B"_qs},
        {u"Picture Taken Date (Old to New)"_qs, u"B a c"_qs},
        {u"Picture Taken Date (New to Old)"_qs, u"c a B"_qs},
        {u"Path (A-Z)"_qs, u"B a c"_qs},
        {u"Path (Z-A)"_qs, u"c a B"_qs},
        {u"FileType (A-Z)"_qs, u"c B a"_qs},
        {u"FileType (Z-A)"_qs, u"a B c"_qs},
        {u"Folder Name (A-Z)"_qs, u"a c B"_qs},
        {u"Folder Name (Z-A)"_qs, u"B c a"_qs},
    };
    ASSERT_EQ(RenameWorkspace::SortEntries().size(), 14);
    for (int i = 0; i < 14; ++i) {
        workspace.grid.SetRows({row(u"a", 10, 30, u"2 C k", u"2002/11/01 10:00:00"),
                                row(u"c", 9, 20, u"3 A l", u"2010/01/01 00:00:00"),
                                row(u"B", 100, 10, u"1 B m", u"2002/9/30 10:00:00")});
        EXPECT_EQ(RenameWorkspace::SortEntries().at(i), entries[i].entry);
        workspace.SortBy(i);
        EXPECT_EQ(Column(GridPre::Original).join(u' '), entries[i].order) << entries[i].entry.toStdString();
    }
}

TEST_F(Rows, ActionsMoveByButtonsWithoutTheirMarkAndByDraggingBelowIt)
{
    actions::ActionList list;
    const auto show = [&list] {
        QStringList texts;
        for (const auto& entry : list.entries) {
            texts.append(entry.text + (entry.Selected ? u"*"_qs : u""_qs));
        }
        return texts.join(u' ') + u' ' + QString::number(list.currentIndex);
    };
    list.entries = {{u"a"_qs, true}, {u"b"_qs, false}, {u"c"_qs, true}, {u"d"_qs, false}};
    list.currentIndex = 0;
    list.MoveCurrent(-1);
    EXPECT_EQ(show(), u"a* b c* d 0"_qs);
    list.MoveCurrent(1);
    EXPECT_EQ(show(), u"b a c* d 1"_qs);
    list.currentIndex = 3;
    list.MoveCurrent(1);
    EXPECT_EQ(show(), u"b a c* d 3"_qs);
    list.ListRowMove(0, 2);
    EXPECT_EQ(show(), u"a c b* d 3"_qs);
    list.ListRowMove(3, 1);
    EXPECT_EQ(show(), u"a d c* b 3"_qs);
    list.ListRowMove(2, 2);
    list.ListRowMove(-1, 2);
    EXPECT_EQ(show(), u"a d c* b 3"_qs);

    EXPECT_EQ(actions::ListRowCalc(15, 16, 0, 13), 0);
    EXPECT_EQ(actions::ListRowCalc(16, 16, 5, 13), 6);
    EXPECT_EQ(actions::ListRowCalc(16 * 8, 16, 5, 13), 12);

    QStringList names;
    for (const auto& entry : actions::ActionList::OfAllActions().entries) {
        names.append(entry.text);
    }
    EXPECT_EQ(names.join(u'|'),
              u"Replace|Replace First|Replace Mid|Replace Last|Replace All|Insert|Suffix|Prefix|"
              u"Length|Change Case|Extension|Clean|Compose"_qs);
}

} // namespace
