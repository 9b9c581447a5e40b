// SPDX-License-Identifier: MIT
#include "model/Text.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

namespace {

using namespace model;

const QString Smile = u"\U0001F600"_qs, HighHalf{QChar(0xD83D)}, LowHalf{QChar(0xDE00)};

TEST(Text, ReplacesWholeCharactersOnly)
{
    EXPECT_EQ(Length(LowHalf + HighHalf), 2) << "halves in the wrong order are no pair";
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

} // namespace
