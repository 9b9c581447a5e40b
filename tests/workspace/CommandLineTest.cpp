// SPDX-License-Identifier: MIT
#include "workspace/CommandLine.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

namespace {

using namespace workspace;

TEST(CommandLine, ABarMakesAListStart)
{
    EXPECT_EQ(ChooseStart(u""_qs), Start::Normal);
    EXPECT_EQ(ChooseStart(u" "_qs), Start::Drop);
    EXPECT_EQ(ChooseStart(u"\"a|b\" c"_qs), Start::List);
    const QStringList items{u"\"a b"_qs, u""_qs, u"c \""_qs, u""_qs};
    EXPECT_EQ(ParseListCommandLine(items.join(u'|')), items);
}

TEST(CommandLine, ADropsItemsArePartedAndUnquoted)
{
    const std::tuple<const char*, QString, QString> rows[] = {
        {"quoted and bare", uR"("C:\My Drops\d.rnp" "C:\a b.txt" C:\c.txt)"_qs,
         uR"(C:\My Drops\d.rnp|C:\a b.txt|C:\c.txt)"_qs},
        {"two blanks part once, at both ends too", u" a  b "_qs, u"|a|b|"_qs},
        {"quotes within an item", u"a\"b c\"d"_qs, u"ab cd"_qs},
        {"an empty item between others is lost", u"a \"\" b"_qs, u"a|b"_qs},
        {"an open quote", u"\"a b"_qs, u"a b"_qs},
        {"a backslash and a quote are a quote that ends nothing", uR"("C:\dir\" x)"_qs, uR"(C:\dir" x)"_qs},
        {"two backslashes and a quote end it", uR"("C:\dir\\" x)"_qs, uR"(C:\dir\|x)"_qs},
        {"backslashes elsewhere stay", uR"(\\a\\b\)"_qs, uR"(\\a\\b\)"_qs},
    };
    for (const auto& [name, tail, items] : rows) {
        EXPECT_EQ(ParseDropCommandLine(tail).join(u'|'), items) << name;
    }
}

TEST(CommandLine, APathsFolderLacksTheNameWhereverItStands)
{
    const std::tuple<QString, QString, QString> rows[] = {
        {uR"(C:\a\b.txt)"_qs, uR"(C:\a\)"_qs, u"b.txt"_qs},
        {uR"(C:\x\x)"_qs, uR"(C:\\)"_qs, u"x"_qs},
        {uR"(C:\dir\)"_qs, uR"(C:\dir\)"_qs, u""_qs},
        {u"/home/a/a"_qs, u"/home//"_qs, u"a"_qs},
        {u"/A/a"_qs, u"/A/"_qs, u"a"_qs},
        {u"/aaa/aa"_qs, u"/a/"_qs, u"aa"_qs},
        {u"b.txt"_qs, u""_qs, u"b.txt"_qs},
    };
    for (const auto& [path, folder, name] : rows) {
        const QChar separator = path.contains(u'\\') ? u'\\' : u'/';
        EXPECT_EQ(SplitPathPart(path, true, separator), folder) << path.toStdString();
        EXPECT_EQ(SplitPathPart(path, false, separator), name) << path.toStdString();
    }
}

} // namespace
