// SPDX-License-Identifier: MIT
//
// The control of the file list, used by mouse and keys as a person does.
#include "fileview/ui/ListViewEditable.h"
#include "support/Recorder.h"
#include "support/TempFolder.h"
#include "ui/Desk.h"

#include <QAbstractItemModelTester>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

namespace {

using fileview::FileList;
using fileview::ListProperties;
using fileview::ListViewEditable;

// A control on show, over the files of a temporary folder.
class FileListControl : public testing::Test
{
protected:
    void SetUp() override
    {
        control.Set(&ListProperties::Checkboxes, true);
        control.Set(&ListProperties::Path, files.Path());
        control.resize(800, 300);
        control.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&control));
    }

    void Add(const QStringList& names)
    {
        for (const QString& name : names) {
            files.Write(name, name.toUtf8());
            control.AddFile(files.Path(), name);
        }
        rows.AnnounceRows();
    }

    QRect CellRect(int row, int column) { return view.visualRect(rows.index(row - 1, column - 1)); }

    // At the end of a cell, behind icon and check box.
    QPoint InCell(int row, int column)
    {
        return {CellRect(row, column).right() - 5, CellRect(row, column).center().y()};
    }

    QPoint OnCheckBox(int row) { return {CellRect(row, 1).left() + 10, CellRect(row, 1).center().y()}; }

    void Click(const QPoint& at, Qt::KeyboardModifiers modifiers = {},
               Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(view.viewport(), button, modifiers, at);
    }

    void ClickHeading(int column)
    {
        const int x = header.sectionViewportPosition(column - 1) + header.sectionSize(column - 1) / 2;
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, {x, header.height() / 2});
    }

    QString Checks() const
    {
        QString checks;
        for (int row = 1; row <= rows.Count(); ++row) {
            checks += rows.Checked(row) ? u'x' : u'-';
        }
        return checks;
    }

    QString Names() const { return rows.Col(FileList::Name, u" "_qs, false); }

    void Choose(const char* entry)
    {
        auto* action = control.mnuOptions().findChild<QAction*>(QLatin1String(entry));
        ASSERT_TRUE(action && action->isEnabled()) << entry;
        action->trigger();
    }

    void Drop(const QStringList& names)
    {
        QStringList paths;
        for (const QString& name : names) {
            paths << files.Path() + name;
        }
        ui_tests::Drop(*view.viewport(), paths);
    }

    testing_support::TempFolder files;
    ui_tests::Answers answers;
    model::AppState state;
    testing_support::Recorder host{state.StopFlag};
    FileList rows;
    QAbstractItemModelTester tester{&rows, QAbstractItemModelTester::FailureReportingMode::Fatal};
    ListViewEditable control{rows, host, state};
    QTableView& view = static_cast<QTableView&>(control.ListView());
    QHeaderView& header = *view.horizontalHeader();
    QLineEdit& txtEdit = ui_tests::Find<QLineEdit>(control, u"txtEdit"_qs);
};

TEST_F(FileListControl, RowsAreCheckedByClickAndByKey)
{
    Add({u"a.txt"_qs, u"b.txt"_qs, u"c.txt"_qs, u"d.txt"_qs});
    QSignalSpy checked(&control, &ListViewEditable::ItemCheck);
    Click(OnCheckBox(2));
    EXPECT_EQ(Checks(), u"-x--"_qs);
    Click(InCell(1, 4));
    EXPECT_EQ(Checks(), u"-x--"_qs) << "a click beside the box checks nothing";
    Click(InCell(3, 4), Qt::ShiftModifier);
    QTest::keyClick(&view, Qt::Key_Space);
    EXPECT_EQ(Checks(), u"xxx-"_qs) << "the selected rows take the check of the current one";
    EXPECT_EQ(checked.count(), 4);
    control.Set(&ListProperties::Checkboxes, false);
    Click(OnCheckBox(4));
    QTest::keyClick(&view, Qt::Key_Space);
    EXPECT_EQ(Checks(), u"xxx-"_qs) << "without check boxes there is nothing to check";
}

TEST_F(FileListControl, AClickOnAHeadingSortsAndAnotherTurnsTheOrderRound)
{
    Add({u"b2.txt"_qs, u"a10.txt"_qs, u"a9.txt"_qs});
    rows.SetCell(1, FileList::Size, u"2KB"_qs);
    rows.SetCell(2, FileList::Size, u"1,024KB"_qs);
    rows.SetCell(3, FileList::Size, u"10KB"_qs);
    control.SetSelectedItem(2);
    QSignalSpy clicked(&control, &ListViewEditable::ColumnClick);
    ClickHeading(FileList::Size);
    EXPECT_EQ(Names(), u"a10.txt a9.txt b2.txt"_qs) << "descending first, since the order was ascending";
    EXPECT_EQ(control.SelectedItem(), 1) << "the selection stays with its row";
    ClickHeading(FileList::Size);
    EXPECT_EQ(rows.Col(FileList::Size, u" "_qs, false), u"2KB 10KB 1,024KB"_qs);
    state.SortNamesByMagnitude = true;
    ClickHeading(FileList::Name);
    ClickHeading(FileList::Name);
    EXPECT_EQ(Names(), u"a9.txt a10.txt b2.txt"_qs);
    control.Set(&ListProperties::FlatHeader, true);
    ClickHeading(FileList::Name);
    EXPECT_EQ(Names(), u"b2.txt a10.txt a9.txt"_qs) << "a flat header takes clicks, too";
    EXPECT_EQ(clicked.count(), 5);
}

TEST_F(FileListControl, ACellIsEditedInPlace)
{
    Add({u"a.txt"_qs, u"b.txt"_qs});
    Click(InCell(1, FileList::Type));
    EXPECT_FALSE(txtEdit.isVisible()) << "not unless it is allowed";
    control.Set(&ListProperties::AllowItemEdit, true);
    QStringList before;
    QObject::connect(&control, &ListViewEditable::BeforeItemEdit, &control,
                     [&](bool&, int row, int col, const QString& oldText, const QString& newText) {
                         before << u"%1:%2 %3 > %4"_qs.arg(row).arg(col).arg(oldText, newText);
                     });
    const auto edit = [this](const char* text, Qt::Key end) {
        Click(InCell(2, FileList::Type));
        ASSERT_TRUE(txtEdit.isVisible() && txtEdit.hasFocus());
        EXPECT_TRUE(CellRect(2, FileList::Type).contains(txtEdit.geometry()));
        QTest::keyClicks(&txtEdit, QLatin1String(text));
        QTest::keyClick(&txtEdit, end);
        EXPECT_TRUE(!txtEdit.isVisible() && view.hasFocus());
    };
    edit("", Qt::Key_Return);
    edit("lost", Qt::Key_Escape);
    EXPECT_EQ(before, QStringList()) << "nothing was changed";
    edit("Song", Qt::Key_Return);
    EXPECT_EQ(rows.Cell(2, FileList::Type), u"Song"_qs);
    EXPECT_EQ(before, QStringList(u"2:3 plain text document > Song"_qs))
        << "the row from 1, the column from 0";

    bool refusesBefore = true;
    QObject::connect(&control, &ListViewEditable::BeforeItemEdit, &control,
                     [&](bool& Cancel) { Cancel = refusesBefore; });
    edit("Film", Qt::Key_Return);
    EXPECT_EQ(rows.Cell(2, FileList::Type), u"Song"_qs);
    refusesBefore = false;
    QString seen;
    QObject::connect(&control, &ListViewEditable::AfterItemEdit, &control,
                     [&](bool& Cancel, int row, int col) {
                         seen = rows.Cell(row, col + 1);
                         Cancel = true;
                     });
    edit("Film", Qt::Key_Return);
    EXPECT_EQ(seen + u' ' + rows.Cell(2, FileList::Type), u"Film Song"_qs) << "written, then taken back";
}

TEST_F(FileListControl, TheEditBoxStaysOverItsCellOrLeavesIt)
{
    QStringList names;
    for (int file = 100; file < 150; ++file) {
        names << QString::number(file);
    }
    Add(names);
    control.Set(&ListProperties::AllowItemEdit, true);
    QSignalSpy scrolled(&control, &ListViewEditable::VScroll);
    Click(InCell(5, FileList::Name));
    const int top = txtEdit.y();
    view.verticalScrollBar()->setValue(2);
    EXPECT_EQ(top - txtEdit.y(), 2 * CellRect(5, 1).height());
    header.resizeSection(0, header.sectionSize(0) + 40);
    EXPECT_EQ(txtEdit.geometry().right(), CellRect(5, 1).right());
    QTest::keyClicks(&txtEdit, u"last"_qs);
    rows.RemoveIf([](const model::FileRow& row) { return row.Text == u"100"_qs; });
    view.verticalScrollBar()->setValue(30);
    EXPECT_TRUE(!txtEdit.isVisible() && view.hasFocus());
    EXPECT_EQ(rows.Cell(4, FileList::Name), u"last"_qs) << "written to its own row, wherever that is now";
    EXPECT_EQ(scrolled.count(), 2);
    EXPECT_EQ(control.TopIndex(), 31);
    control.SetTopIndex(1000);
    EXPECT_TRUE(CellRect(49, 1).isValid() && view.viewport()->rect().contains(CellRect(49, 1)));
}

TEST_F(FileListControl, ClicksSelectAndTellTheCell)
{
    Add({u"a.txt"_qs, u"b<b>.txt"_qs});
    QSignalSpy clicked(&control, &ListViewEditable::SubitemClick);
    Click(InCell(2, FileList::Date), Qt::ControlModifier);
    EXPECT_EQ(clicked.value(0), (QVariantList{2, 4, 1, 2}));
    EXPECT_EQ(control.SelectedItem(), 2);
    Click({view.viewport()->width() - 3, 10});
    EXPECT_EQ(control.SelectedItem(), 0) << "a click beside all columns takes the selection away";
    QTest::mouseMove(view.viewport(), InCell(2, FileList::Name));
    EXPECT_EQ(view.toolTip(), files.Path() + u"b<b>.txt"_qs);
    QTest::mouseMove(view.viewport(), InCell(2, FileList::Size));
    EXPECT_EQ(view.toolTip(), u"1KB"_qs);

    std::vector<int> items{7};
    EXPECT_EQ(control.GetSelectedItems(items), 0);
    EXPECT_EQ(items, std::vector{7}) << "left alone";
    control.SelectedAll(true);
    EXPECT_TRUE(control.GetSelectedItems(items) == 2 && items == (std::vector{1, 2}));
    control.InvertSelections();
    EXPECT_EQ(control.SelectedCount(), 0);
}

TEST_F(FileListControl, FilesAndFoldersAreDropped)
{
    for (const char* name : {"notes.txt", "one/a.jpg", "one/b.png", "two/c.jpg", "bare"}) {
        files.Write(QLatin1String(name));
    }
    QSignalSpy finished(&control, &ListViewEditable::FileDragDropFinish);
    Drop({u"notes.txt"_qs});
    Drop({u"notes.txt"_qs, u"bare"_qs});
    EXPECT_EQ(rows.Count(), 2) << "the same file twice is one row";
    Drop({u"one"_qs, u"two"_qs});
    EXPECT_EQ(rows.Count(), 5);
    EXPECT_EQ(finished.last(), (QVariantList{2, 0, 2}));
    control.Set(&ListProperties::ClearOnDragDrop, true);
    Drop({u"one"_qs, u"two"_qs, u"bare"_qs});
    EXPECT_EQ(rows.Count(), 2) << "the last folder, and the file behind it";
    control.Set(&ListProperties::FileSpec, u"*.jpg"_qs);
    Drop({u"one"_qs, u"notes.txt"_qs, u"bare"_qs});
    EXPECT_EQ(Names(), u"bare a.jpg"_qs) << "sorted by folder; a file without extension always passes";
    control.Set(&ListProperties::ClearOnDragDrop, false);
    control.StopScan();
    Drop({u"two"_qs});
    EXPECT_EQ(rows.Count(), 2) << "a stop goes on until the flag is reset";
    control.ResetStopFlag();
    Drop({u"two"_qs});
    EXPECT_EQ(rows.Count(), 3);
}

TEST_F(FileListControl, TheMenuWorksOnTheSelectedRowAndTheChecks)
{
    Add({u"a.txt"_qs, u"b.txt"_qs});
    files.Write(u"sub/c.txt"_qs);
    control.AddFile(files.Path() + u"sub/"_qs, u"c.txt"_qs);
    rows.AnnounceRows();
    Click(InCell(1, FileList::Type), {}, Qt::RightButton);
    EXPECT_FALSE(control.mnuOptions().isVisible());
    control.Set(&ListProperties::AutoPopupMenu, true);
    Click(InCell(1, FileList::Type), {}, Qt::RightButton);
    ASSERT_TRUE(control.mnuOptions().isVisible());
    control.mnuOptions().close();
    EXPECT_EQ(control.SelectedItem(), 1);

    Choose("mnuSelectDir");
    EXPECT_EQ(Checks(), u"xx-"_qs);
    Choose("mnuCheck");
    EXPECT_EQ(Checks(), u"--x"_qs);
    Choose("mnuSelectall");
    Choose("mnuDeselectDir");
    EXPECT_EQ(Checks(), u"--x"_qs);
    files.MakeFolder(u"target"_qs);
    Choose("mnuCopy");
    EXPECT_EQ(files.Names(u"target"_qs), QStringList()) << "the dialog was cancelled";
    EXPECT_EQ(state.LastTargetFolder, QString());
    answers.fileToChoose = files.Path() + u"target"_qs;
    Choose("mnuCopy");
    Choose("mnuMove");
    EXPECT_EQ(files.Names(u"target"_qs) + files.Names(u"sub"_qs), (QStringList{u"c.txt"_qs, u"c.txt"_qs}))
        << "moving doesn't replace";
    EXPECT_EQ(state.LastTargetFolder, answers.fileToChoose);
    QContextMenuEvent byKey(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(&view, &byKey);
    EXPECT_TRUE(control.mnuOptions().isVisible());
    control.mnuOptions().close();
    EXPECT_EQ(Names(), u"a.txt b.txt c.txt"_qs) << "rows stay as they were";
}

TEST_F(FileListControl, ViewsAndPropertiesShow)
{
    Add({u"a.txt"_qs, u"b.txt"_qs});
    control.SetSelectedItem(2);
    control.DoHighlightColumn(fileview::vbLedgerGreen, fileview::vbLedgerPureWhite, 3, fileview::sizeNone);
    control.Set(&ListProperties::HighlightColumn, true);
    const QImage picture = view.viewport()->grab().toImage();
    const auto below = [&](int column) {
        return picture.pixelColor(header.sectionViewportPosition(column - 1) + 5,
                                  view.viewport()->height() - 5);
    };
    EXPECT_EQ(below(3), QColor(0xCC, 0xFF, 0xD0)) << "tinted down to the bottom";
    EXPECT_EQ(below(4), QColor(Qt::white));

    for (const int mode : {fileview::lvwIcon, fileview::lvwSmallIcon, fileview::lvwList}) {
        control.Set(&ListProperties::View, mode);
        EXPECT_TRUE(!view.isVisible() && control.ListView().isVisible());
        EXPECT_EQ(control.SelectedItem(), 2) << "the selection is the same in each view";
    }
    fileview::PropertyBag bag;
    control.WriteProperties(bag);
    ListViewEditable other(rows, host, state);
    other.ReadProperties(bag);
    EXPECT_TRUE(other.Properties().View == fileview::lvwList && !other.IsChanged() && control.IsChanged());
}

} // namespace
