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
const QString Byte{QChar(0xDC80)}, Smile = u"\U0001F600"_qs, Mixed = u"a\U0001F600b\u0301"_qs + Byte;
const QString HighHalf{QChar(0xD83D)}, LowHalf{QChar(0xDE00)};

TEST(Text, CountsAndCutsWholeCharacters)
{
    EXPECT_EQ(Length(Mixed), 5);
    EXPECT_EQ(Length(LowHalf + HighHalf), 2) << "halves in the wrong order are no pair";
    EXPECT_EQ(Left(Mixed, 2), u"a"_qs + Smile);
    EXPECT_EQ(Left(Mixed, 99), Mixed);
    EXPECT_EQ(Right(Mixed, 2), u"\u0301"_qs + Byte);
    EXPECT_EQ(Right(Mixed, 4), Mixed.mid(1)) << "it begins with the pair";
    EXPECT_EQ(Right(Mixed, 0), QString());
    EXPECT_EQ(Mid(Mixed, 2, 1), Smile);
    EXPECT_EQ(Mid(Mixed, 5, 9), Byte) << "the middle ends where the text ends";
    EXPECT_EQ(Mid(Mixed, 6, 1), QString());
    EXPECT_EQ(Repeat(2, Smile + u'x'), Smile + Smile);
    EXPECT_EQ(Repeat(0, QString()), QString());
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
    const std::tuple<QString, QString, QString> rows[] = {
        {Smile, LowHalf, Smile}, // half a pair isn't found, a lone one before a pair is
        {Smile, HighHalf, Smile},
        {LowHalf + Smile, LowHalf, u"+"_qs + Smile},
        {HighHalf + Smile, HighHalf, u"+"_qs + Smile},
        {Smile + u"a"_qs + Smile, Smile, u"+a+"_qs},
        {u"aaa"_qs, u"aa"_qs, u"+a"_qs}, // occurrences don't overlap
        {u"aA"_qs, u"A"_qs, u"a+"_qs},
        {u"a"_qs, u""_qs, u"a"_qs}};
    for (const auto& [text, find, expected] : rows) {
        EXPECT_EQ(Replace(text, find, u"+"_qs), expected) << "row of " << find.toStdString();
    }
    EXPECT_EQ(Replace(u"aAbB"_qs, u"Ab"_qs, u"aAb"_qs, Qt::CaseInsensitive), u"aaAbB"_qs);
    EXPECT_EQ(InvertCase(u"aZ[`{@\u00e9\u00c9"_qs + Smile), u"Az[`{@\u00e9\u00c9"_qs + Smile);
}

TEST(Text, NamesAreSplitAtTheirLastDot)
{
    const QStringList rows[] = {{u"a.b"_qs, u".txt"_qs, u""_qs},
                                {u""_qs, u".ini"_qs, u"Text"_qs},
                                {u"a"_qs, u"."_qs, u""_qs},
                                {u"plain"_qs, u""_qs, u""_qs},
                                {u""_qs, u""_qs, u""_qs},
                                {u"my.dir"_qs, u""_qs, u"File Folder"_qs},
                                {u"my"_qs, u".dir"_qs, u"file folder"_qs}};
    for (const QStringList& row : rows) {
        EXPECT_EQ(GetFName(row[0] + row[1], row[2], false), row[0]);
        EXPECT_EQ(GetFName(row[0] + row[1], row[2], true), row[1]);
    }
}

} // namespace
