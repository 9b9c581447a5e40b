// SPDX-License-Identifier: MIT
#include "platform/Conversions.h"
#include "platform/TypeText.h"
#include "support/WorkspaceFixture.h"

namespace {

using namespace workspace;

class Rows : public testing_support::WorkspaceFixture
{
protected:
    // The rows' cells joined by "|", the folder of the test written as "~".
    QStringList Cells() const
    {
        QStringList rows(workspace.grid.RowCount());
        for (int column = 1; column <= GridPre::ColumnCount; ++column) {
            for (int row = 1; row <= rows.size(); ++row) {
                rows[row - 1] += workspace.grid.Cell(row, column).replace(folder.Path(), u"~"_qs) + u'|';
            }
        }
        return rows;
    }
};

TEST_F(Rows, AreTheCheckedFilesFilledWithWordsOrSilentlyForACommandLine)
{
    // Folders first and in the middle, a vanished file and an unchecked one.
    folder.MakeFolder(u"b/1.dir"_qs);
    folder.MakeFolder(u"b/3.dir"_qs);
    for (const QString& name : {u"2.txt"_qs, u"4.txt"_qs, u"5.txt"_qs, u"6.txt"_qs}) {
        folder.Write(u"b/"_qs + name, QByteArray(name.left(1).toInt(), 'x'));
        folder.SetModified(u"b/"_qs + name, name == u"2.txt" ? 1'000'000'000 : 1'200'000'000);
    }
    List({u"1.dir/"_qs, u"2.txt"_qs, u"3.dir/"_qs, u"4.txt"_qs, u"5.txt"_qs, u"6.txt"_qs}, u"b/"_qs);
    mainList.SetChecked(5, false);
    Remove(u"b/4.txt"_qs);
    const QString text = platform::TypeTexts().OfFile(u"a.txt"_qs), blank = u"|||0|||||"_qs;
    const QString early = platform::ModifiedText(1'000'000'000), late = platform::ModifiedText(1'200'000'000);
    const QString file = u"%1.txt||~b/|%2|%3|b|%4||"_qs, dir = u"%1.dir||~b/|0|%2|b|File Folder||"_qs;
    const QStringList two{dir.arg(1).arg(QString()), file.arg(2).arg(2).arg(early, text)};
    const QStringList all = two + QStringList{dir.arg(3).arg(early), file.arg(4).arg(2).arg(early, text),
                                              file.arg(6).arg(6).arg(late, text)};
    const QString loading = u"count ; status Loading Files...; max 5; value 0; value 1; value 2; "_qs;
    const std::tuple<const char*, bool, int, int, QStringList, QString> cases[] = {
        {"a refresh", false, 5, 0, all,
         loading + u"value 3; value 4; value 5; value 0; status Ready; count (5 Items)"_qs},
        {"a stopped one", false, 5, 2, two, loading + u"value 0; status Ready; count (2 Items)"_qs},
        {"a command line", true, 5, 0, all, u""_qs},
        {"its rows are made before the list is walked", true, 6, 0, all + QStringList(blank), u""_qs},
        {"a stopped command line", true, 4, 2, two + QStringList(2, blank), u""_qs},
    };
    for (const auto& [name, hasCommandLine, checkedCount, stopAt, rows, events] : cases) {
        state.CheckedCount = checkedCount;
        host.AtYield(stopAt, [this] { state.StopFlag.Set(); });
        for (const bool isChanged : {true, false}) {
            workspace.grid.Clear();
            state.FileListChanged = isChanged;
            workspace.RefillIfChanged(hasCommandLine);
            EXPECT_EQ(Cells(), isChanged ? rows : QStringList()) << name;
            EXPECT_EQ(host.TakeEvents(), isChanged ? events : QString()) << name;
            EXPECT_FALSE(state.StopFlag.IsSet() || state.FileListChanged) << name;
        }
    }
}

TEST_F(Rows, AFoldersNameIsItsPathsLastComponent)
{
    for (const QString& row :
         {uR"(C:\a\b c\=b c)"_qs, uR"(C:\a\=a)"_qs, uR"(C:\=)"_qs, uR"(\\server\share\=share)"_qs,
          u"/a/b/=b"_qs, u"/a/=a"_qs, u"/="_qs, u"="_qs, u"rel/x/=x"_qs, u"rel/="_qs}) {
        const QString path = row.section(u'=', 0, 0);
        EXPECT_EQ(FolderNameOf(path, path.contains(u'\\') ? u'\\' : u'/'), row.section(u'=', 1))
            << row.toStdString();
    }
}

TEST_F(Rows, AreSortedByFourteenEntriesThatComeInPairs)
{
    EXPECT_EQ(RenameWorkspace::SortEntries().join(u'|'),
              u"Name (A-Z)|Name (Z-A)|Size (Ascending)|Size (Descending)|Date Created (Old to New)|"
              u"Date Created (New to Old)|Picture Taken Date (Old to New)|Picture Taken Date (New to Old)|"
              u"Path (A-Z)|Path (Z-A)|FileType (A-Z)|FileType (Z-A)|Folder Name (A-Z)|Folder Name (Z-A)"_qs);
    const QString ascending[] = {u"aBc"_qs, u"caB"_qs, u"Bca"_qs, u"Bac"_qs, u"Bac"_qs, u"cBa"_qs, u"acB"_qs};
    for (int entry = 0; entry < 14; ++entry) {
        workspace.grid.SetRows({{u"a"_qs, {}, u"2"_qs, 10, 30, u"k"_qs, u"C"_qs, u"2002/11/01 10:00:00"_qs},
                                {u"c"_qs, {}, u"9"_qs, 9, 20, u"l"_qs, u"A"_qs, u"2010/01/01 00:00:00"_qs},
                                {u"B"_qs, {}, u"1"_qs, 100, 10, u"m"_qs, u"B"_qs, u"2002/9/30 10:00:00"_qs}});
        workspace.SortBy(entry);
        QString sorted = Column(GridPre::Original).join(QString());
        entry % 2 == 0 ? void() : std::reverse(sorted.begin(), sorted.end());
        EXPECT_EQ(sorted, ascending[entry / 2]) << RenameWorkspace::SortEntries().at(entry).toStdString();
    }
}

TEST_F(Rows, AnActionDroppedBelowTheListBecomesItsLast)
{
    auto& list = options.List3;
    list.ListRowMove(0, actions::ListRowCalc(16 * 20, 16, 0, 13));
    list.ListRowMove(-1, 2); // from no row: nothing moves
    EXPECT_EQ(list.entries[0].text + list.entries[12].text, u"Replace FirstReplace"_qs);
}

} // namespace
