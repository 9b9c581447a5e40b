// SPDX-License-Identifier: MIT
//
// The list behind the replace windows and its file: which rows count, what loading and marking leave alone,
// and that a file of any kind is either taken as it stands or refused without harm.
#include "support/TempFolder.h"
#include "workspace/ReplaceGrid.h"
#include "workspace/ReplaceListFile.h"

#include <gtest/gtest.h>

namespace {

using workspace::ReplaceGrid;

// Rows parted by blanks, their cells by ",".
QByteArray Texts(const actions::ReplaceRows& rows)
{
    QStringList texts;
    for (const auto& row : rows) {
        texts << QStringList{row.matchFlag, row.from, row.to}.join(u',');
    }
    return texts.join(u' ').toUtf8();
}

struct GridCase
{
    const char* name;
    void (*change)(ReplaceGrid&);
    int count;
    const char* firstThree;
};

const GridCase GridCases[] = {
    {"a touched row", [](ReplaceGrid& grid) { grid.Touch(3); }, 3, "n,a,1 y,b,2 ,,"},
    {"an empty flag in an edited row", [](ReplaceGrid& grid) { grid.BeginEdit(3); }, 3, "n,a,1 y,b,2 n,,"},
    {"marks are capitals", [](ReplaceGrid& grid) { grid.MarkAll(true); }, 2, "Y,a,1 Y,b,2 ,,"},
    {"cleared rows stay in the list", [](ReplaceGrid& grid) { grid.Clear(); }, 2, ",, ,, ,,"},
    {"a deleted row", [](ReplaceGrid& grid) { grid.DeleteRow(1); }, 2, "y,b,2 ,, ,,"},
    {"older rows on show", [](ReplaceGrid& grid) { grid.Load({{}}); }, 1, ",, y,b,2 ,,"},
    {"a cell of one line", [](ReplaceGrid& grid) { grid.setData(grid.index(0, 2), QLatin1String("1\n2")); },
     2, "n,a,1 y,b,2 ,,"},
};

TEST(ReplaceGrid, KeepsItsFiveHundredRowsAndItsCount)
{
    for (const GridCase& each : GridCases) {
        SCOPED_TRACE(each.name);
        ReplaceGrid grid({});
        grid.Show({{QStringLiteral("n"), QStringLiteral("a"), QStringLiteral("1")},
                   {QStringLiteral("y"), QStringLiteral("b"), QStringLiteral("2")}});
        each.change(grid);
        EXPECT_EQ(grid.Count(), each.count);
        EXPECT_EQ(grid.rowCount(), 500);
        grid.Touch(3);
        EXPECT_EQ(Texts(grid.Rows()), each.firstThree);
    }
}

TEST(ReplaceListFile, TakesWhatIsThereAndRefusesForeignFiles)
{
    const QByteArray header = "Tarnwick Strings Replace List\r\n";
    const struct
    {
        QByteArray content;
        QByteArray rows;
    } cases[] = {
        {header, ""}, // no rows
        {header + "1\r\nn\r\na\r\n1\r\ny\r\nb", "n,a,1 y,b,"},
        {"Tarnwick Strings Replace List\n0\nn\na\n1\n", "n,a,1"},
        {header + "0\r\nn\r\n\xE4\r\n1\r\n", "n,\u00e4,1"}, // of an older program
        {header + "0\r\n" + QByteArray("n\r\na\r\n\r\n").repeated(600),
         QByteArray("n,a, ").repeated(500).trimmed()},
        {"", "Invalid File"},
        {header.toLower() + "0\r\nn\r\na\r\n1\r\n", "Invalid File"},
    };
    testing_support::TempFolder folder;
    for (const auto& each : cases) {
        SCOPED_TRACE(each.content.left(80).constData());
        folder.Write(QStringLiteral("a.srl"), each.content);
        workspace::ReplaceListFile list;
        const auto status = workspace::LoadReplaceList(list, folder.Path() + QStringLiteral("a.srl"));
        EXPECT_EQ(status.IsOk() ? Texts(list.rows) : status.Description().toUtf8(), each.rows);
    }
}

} // namespace
