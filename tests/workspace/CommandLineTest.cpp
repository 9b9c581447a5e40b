// SPDX-License-Identifier: MIT
#include "workspace/CommandLine.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

namespace {

using namespace workspace;

TEST(CommandLine, ABarMakesAListStart)
{
    const std::pair<QString, Start> rows[] = {
        {u""_qs, Start::Normal},    {u"a.rnp b"_qs, Start::Drop}, {u" "_qs, Start::Drop},
        {u"\"a\""_qs, Start::Drop}, {u"a|b"_qs, Start::List},     {u"\"a|b\" c"_qs, Start::List},
    };
    for (const auto& [tail, start] : rows) {
        EXPECT_EQ(ChooseStart(tail), start) << tail.toStdString();
    }
    EXPECT_EQ(ParseListCommandLine(u"\"a b||c \"|"_qs),
              QStringList({u"\"a b"_qs, u""_qs, u"c \""_qs, u""_qs}));
}

TEST(CommandLine, ADropsItemsArePartedAndUnquoted)
{
    const struct
    {
        const char* name;
        QString tail;
        QStringList items;
    } rows[] = {
        {"quoted and bare",
         uR"("C:\My Drops\d.rnp" "C:\a b.txt" C:\c.txt)"_qs,
         {uR"(C:\My Drops\d.rnp)"_qs, uR"(C:\a b.txt)"_qs, uR"(C:\c.txt)"_qs}},
        {"one quoted item", uR"("d.rnp")"_qs, {u"d.rnp"_qs}},
        {"two blanks part once", u"a  b"_qs, {u"a"_qs, u"b"_qs}},
        {"blanks in quotes stay", u"\"a  b\""_qs, {u"a  b"_qs}},
        {"a blank at the end", u"a "_qs, {u"a"_qs, u""_qs}},
        {"a blank at the start", u" a"_qs, {u""_qs, u"a"_qs}},
        {"quotes within an item", u"a\"b c\"d"_qs, {u"ab cd"_qs}},
        {"an empty item between others is lost", u"a \"\" b"_qs, {u"a"_qs, u"b"_qs}},
        {"an open quote", u"\"a b"_qs, {u"a b"_qs}},
        {"a backslash and a quote are a quote", uR"(a\"b c)"_qs, {u"a\"b"_qs, u"c"_qs}},
        {"and it doesn't end the item", uR"("C:\dir\" x)"_qs, {uR"(C:\dir" x)"_qs}},
        {"two backslashes and a quote end it", uR"("C:\dir\\" x)"_qs, {uR"(C:\dir\)"_qs, u"x"_qs}},
        {"backslashes elsewhere stay", uR"(\\a\\b\)"_qs, {uR"(\\a\\b\)"_qs}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ParseDropCommandLine(row.tail), row.items) << row.name;
    }
}

TEST(CommandLine, APathsFolderLacksTheNameWhereverItStands)
{
    const struct
    {
        QString path;
        QChar separator;
        QString folder, name;
    } rows[] = {
        {uR"(C:\a\b.txt)"_qs, u'\\', uR"(C:\a\)"_qs, u"b.txt"_qs},
        {uR"(C:\x\x)"_qs, u'\\', uR"(C:\\)"_qs, u"x"_qs},
        {uR"(C:\dir\)"_qs, u'\\', uR"(C:\dir\)"_qs, u""_qs},
        {uR"(C:\a/b)"_qs, u'\\', uR"(C:\)"_qs, u"a/b"_qs},
        {u"/home/u/b.txt"_qs, u'/', u"/home/u/"_qs, u"b.txt"_qs},
        {u"/home/a/a"_qs, u'/', u"/home//"_qs, u"a"_qs},
        {u"/A/a"_qs, u'/', u"/A/"_qs, u"a"_qs},
        {u"/aaa/aa"_qs, u'/', u"/a/"_qs, u"aa"_qs},
        {u"b.txt"_qs, u'/', u""_qs, u"b.txt"_qs},
        {u""_qs, u'/', u""_qs, u""_qs},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(SplitPathPart(row.path, true, row.separator), row.folder) << row.path.toStdString();
        EXPECT_EQ(SplitPathPart(row.path, false, row.separator), row.name) << row.path.toStdString();
    }
}

} // namespace
