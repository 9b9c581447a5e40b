// SPDX-License-Identifier: MIT
#include "model/Text.h"

#include "model/ActionError.h"
#include "model/GetFName.h"
#include "support/Printers.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

using namespace model;

// A letter, a pair, a letter with a mark of its own, and a byte that is no UTF-8: five characters.
const QString Mixed = u"a\U0001F600b\u0301"_qs + QChar(0xDC80);
const QString Smile = u"\U0001F600"_qs;
const QString HighHalf{QChar(0xD83D)};
const QString LowHalf{QChar(0xDE00)};

TEST(Text, CountsAndCutsWholeCharacters)
{
    EXPECT_EQ(Length(Mixed), 5);
    EXPECT_EQ(Length(LowHalf + HighHalf), 2) << "halves in the wrong order are no pair";
    const struct
    {
        const char* name;
        QString result, expected;
    } rows[] = {
        {"the left side ends behind the pair", Left(Mixed, 2), u"a"_qs + Smile},
        {"the left side of more than all is all", Left(Mixed, 99), Mixed},
        {"the right side keeps the lone byte", Right(Mixed, 2), u"\u0301"_qs + QChar(0xDC80)},
        {"the right side begins with the pair", Right(Mixed, 4), Mixed.mid(1)},
        {"the right side of nothing is empty", Right(Mixed, 0), QString()},
        {"the middle is the pair", Mid(Mixed, 2, 1), Smile},
        {"the middle ends where the text ends", Mid(Mixed, 5, 9), QString(QChar(0xDC80))},
        {"behind the end there is nothing", Mid(Mixed, 6, 1), QString()},
        {"a pair is repeated whole", Repeat(2, Smile + u'x'), Smile + Smile},
        {"nothing can be repeated no times", Repeat(0, QString()), QString()},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.result, row.expected) << row.name;
    }
    const std::function<QString()> failing[] = {
        [] { return Left(Mixed, -1); },     [] { return Left(u"a"_qs, -1); },
        [] { return Right(Mixed, -1); },    [] { return Right(u"a"_qs, -1); },
        [] { return Mid(Mixed, 0, 1); },    [] { return Mid(u"a"_qs, 0, 1); },
        [] { return Mid(u"a"_qs, 1, -1); }, [] { return Repeat(-1, u"a"_qs); },
        [] { return Repeat(1, {}); },
    };
    for (const auto& call : failing) {
        EXPECT_THROW(static_cast<void>(call()), ActionError) << "call " << &call - failing;
    }
}

TEST(Text, ReplacesWholeCharactersOnly)
{
    const struct
    {
        const char* name;
        QString text, find, expected;
    } rows[] = {
        {"the low half of a pair isn't found", Smile, LowHalf, Smile},
        {"the high half of a pair isn't found", Smile, HighHalf, Smile},
        {"a lone low half before a pair is", LowHalf + Smile, LowHalf, u"+"_qs + Smile},
        {"a lone high half before a pair is", HighHalf + Smile, HighHalf, u"+"_qs + Smile},
        {"a whole pair is", Smile + u"a"_qs + Smile, Smile, u"+a+"_qs},
        {"occurrences don't overlap", u"aaa"_qs, u"aa"_qs, u"+a"_qs},
        {"case counts", u"aA"_qs, u"A"_qs, u"a+"_qs},
        {"nothing occurs nowhere", u"a"_qs, u""_qs, u"a"_qs},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Replace(row.text, row.find, u"+"_qs), row.expected) << row.name;
    }
    EXPECT_EQ(Replace(u"aAbB"_qs, u"Ab"_qs, u"aAb"_qs, Qt::CaseInsensitive), u"aaAbB"_qs);
    EXPECT_EQ(InvertCase(u"aZ[`{@\u00e9\u00c9"_qs + Smile), u"Az[`{@\u00e9\u00c9"_qs + Smile);
}

TEST(Text, NamesAreSplitAtTheirLastDot)
{
    const struct
    {
        QString name, type, base, extension;
    } rows[] = {
        {u"a.b.txt"_qs, u""_qs, u"a.b"_qs, u".txt"_qs},
        {u".ini"_qs, u"Text"_qs, u""_qs, u".ini"_qs},
        {u"a."_qs, u""_qs, u"a"_qs, u"."_qs},
        {u"plain"_qs, u""_qs, u"plain"_qs, u""_qs},
        {u""_qs, u""_qs, u""_qs, u""_qs},
        {u"my.dir"_qs, u"File Folder"_qs, u"my.dir"_qs, u""_qs},
        {u"my.dir"_qs, u"file folder"_qs, u"my"_qs, u".dir"_qs},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(GetFName(row.name, row.type, false), row.base) << row.name.toStdString();
        EXPECT_EQ(GetFName(row.name, row.type, true), row.extension) << row.name.toStdString();
    }
}

} // namespace
