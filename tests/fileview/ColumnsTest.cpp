// SPDX-License-Identifier: MIT
#include "fileview/ListProperties.h"
#include "fileview/PathParts.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

namespace {

using namespace fileview;

TEST(Columns, AreReadFromTheirLineByName)
{
    // A line, and the five fields read from it.
    for (const QString& row :
         {u"|Text=a|Width=799.9371|DataType=1|Level=7| > a||799.9371|0|1"_qs,
          u"|datatype=2|KEY=k|Width=1x|text=  a b | >   a b |k|1|0|2"_qs, u"Key=k|Text=a > ||0|0|0"_qs,
          u"|xKey=|Text=Key=5|Key=Text=| > Key=5|Text=|0|0|0"_qs,
          u"|Width=|Alignment=99999999999|DataType=x| > ||0|0|0"_qs}) {
        ColHeader header{u"old"_qs, u"old"_qs, 1, 1, 1};
        header.SetPropsFromTagText(row.section(u" > "_qs, 0, 0), u"|"_qs);
        const QStringList of = row.section(u" > "_qs, 1).split(u'|');
        const QString text = u"#Text=%1#Key=%2#Width=%3#Alignment=%4#DataType=%5#"_qs;
        EXPECT_EQ(header.GetTagText(u"#"_qs), text.arg(of[0], of[1], of[2], of[3], of[4]));
    }
}

TEST(Columns, AreStoredInOneTextAndFoundByNumberAndKey)
{
    ColHeaders headers;
    EXPECT_EQ(headers.GetTagText(u"\n"_qs), QString());
    headers.CreateItemsFromTagText(DefaultColumnHeadersText() + u"\r\n\r\n"_qs, u"\r\n"_qs, u"|"_qs);
    EXPECT_EQ(headers.GetTagText(u"\r\n"_qs).trimmed(), DefaultColumnHeadersText().remove(u"Level=0|"_qs));
    EXPECT_TRUE(headers.Item(3)->Width == 799.9371F && headers.Item(5)->Alignment == lvwColumnCenter);
    for (const int round : {1, 2}) {
        headers.AddFromColumnHeaders({{u"b"_qs, u"B"_qs, 0, 0, u"2x"_qs}, {{}, u"C"_qs, 0, 0, {}}});
        EXPECT_FALSE(headers.Add(u"B"_qs, u"twice"_qs) || headers.Add({}, u"nowhere"_qs, 0, 0, 0, 4));
        headers.Add(u"a"_qs, u"A"_qs, 0, 0, 0, 1);
        EXPECT_TRUE(headers.Item(u"B"_qs) == headers.Item(2) && headers.Item(2)->DataType == 2) << round;
        EXPECT_FALSE(headers.Exists({}) || headers.Exists(u"c"_qs) || headers.Exists(0) || headers.Exists(4));
        EXPECT_TRUE(headers.Remove(u"A"_qs) && headers.Remove(2) && !headers.Remove(2));
    }
}

TEST(Properties, AreStoredOnlyWhereTheyDifferAndPassedOverWhereTheyMakeNoSense)
{
    PropertyBag bag;
    ListProperties::OfNewList().WriteTo(bag);
    EXPECT_EQ(bag.Values().keys(), QStringList(u"ShowFolders"_qs));
    ListProperties changed;
    changed.Path = u"/\xDCFF"_qs;
    changed.CurrrentHighlightColumn = 3;
    changed.WriteTo(bag);
    EXPECT_EQ(bag.Values().size(), 2) << "a default is stored no longer";
    EXPECT_EQ(bag.ReadProperty(u"CurrrentHighlightColumn"_qs, {}), 3) << "the key has three r's";
    bag.WriteProperty(u"UpdateFrequency"_qs, u"often"_qs, {});
    bag.WriteProperty(u"FileSpec"_qs, QVariantList{1}, {});
    const ListProperties read = ListProperties::ReadFrom(bag);
    EXPECT_TRUE(read.Path == changed.Path && read.CurrrentHighlightColumn == 3);
    EXPECT_TRUE(read.UpdateFrequency == 100 && read.FileSpec == u"*.*" && read.ShowFolders == 2);
}

TEST(Paths, AreTakenApartAtBothSeparators)
{
    // A path, and its parts from 0 to 6.
    for (const QString& row :
         {uR"(C:\a.d/b.c.txt > b.c|txt|C:\a.d/|C:\a.d|b.c.txt|C:\a.d/b.c|a)"_qs,
          uR"(/x.y\name > name||/x.y\|/x.y|name|/x.y\name|x)"_qs, u".ini > |ini|||.ini||"_qs,
          u"/a. > a||/||a.|/a|"_qs, u"/dir/ > ||/dir/|/dir||/dir/|dir"_qs}) {
        QStringList parts;
        for (int part = 0; part <= 6; ++part) {
            parts << PartOf(row.section(u" > "_qs, 0, 0), static_cast<PathPart>(part), uR"(\/)"_qs);
        }
        EXPECT_EQ(parts.join(u'|'), row.section(u" > "_qs, 1));
    }
}

} // namespace
