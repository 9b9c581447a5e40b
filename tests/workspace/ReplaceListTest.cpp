// SPDX-License-Identifier: MIT
//
// The file of a replace list: of any kind, it is either taken as it stands or refused without harm.
#include "support/TempFolder.h"
#include "workspace/ReplaceListFile.h"

#include <gtest/gtest.h>

namespace {

// Rows parted by blanks, their cells by ",".
QByteArray Texts(const actions::ReplaceRows& rows)
{
    QStringList texts;
    for (const auto& row : rows) {
        texts << QStringList{row.matchFlag, row.from, row.to}.join(u',');
    }
    return texts.join(u' ').toUtf8();
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
