// SPDX-License-Identifier: MIT
#include "platform/CommandTail.h"
#include "platform/NameBytes.h"
#include "platform/TypeText.h"
#include "support/Printers.h"
#include "workspace/CommandLine.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace platform;

namespace {

TEST(NameBytes, EveryByteStringSurvivesAndValidUtf8IsText)
{
    for (int two = 0; two < 0x10000; ++two) {
        const QByteArray both = QByteArray(1, static_cast<char>(two >> 8)) + static_cast<char>(two & 0xFF);
        for (const QByteArray& bytes : {both.left(1), "\xE2" + both + "x", "\xF0\x90" + both + "\xBF"}) {
            ASSERT_EQ(ToBytes(FromBytes(bytes)), bytes);
        }
    }
    const std::pair<QByteArray, QString> rows[] = {
        {"a \xC3\xBC\xF0\x9F\x98\x80\xEF\xBF\xBF", u"a \u00FC\U0001F600\xFFFF"_s},
        {"\xEF\xBB\xBFx\xFF\xEF\xBB\xBF", u"\uFEFFx\xDCFF\uFEFF"_s},         // byte order marks
        {"\xC0\xAF\xE0\x9F\xBF", u"\xDCC0\xDCAF\xDCE0\xDC9F\xDCBF"_s},       // overlong forms
        {"\xED\xB2\x80x", u"\xDCED\xDCB2\xDC80x"_s},                         // an encoded surrogate
        {"\xF4\x90\x80\x80", u"\xDCF4\xDC90\xDC80\xDC80"_s},                 // above U+10FFFF
        {"\xE2\x82x\xE2\xC3\xBC\x80", u"\xDCE2\xDC82x\xDCE2\u00FC\xDC80"_s}, // cut off, and stray
    };
    for (const auto& [bytes, text] : rows) {
        EXPECT_EQ(FromBytes(bytes), text);
        EXPECT_EQ(ToBytes(text), bytes);
    }
    EXPECT_EQ(ToBytes(u"\xD83Dx\xDC7F"_s), "\xEF\xBF\xBDx\xEF\xBF\xBD") << "surrogates of no byte";
}

TEST(CommandTail, DropsComeBackAsTheyWereGiven)
{
    const auto comesBack = [](const QStringList& arguments) {
        return workspace::ParseDropCommandLine(BuildCommandTail(arguments)) == arguments;
    };
    QStringList items{QString()}; // all texts up to 5 of the characters with a meaning, and a letter
    for (qsizetype at = 0; items.at(at).size() < 5; ++at) {
        for (const QChar c : u"\\\" a"_s) {
            const QString item = items.at(at) + c;
            items.append(item);
            EXPECT_TRUE(comesBack({item}) && comesBack({u"end\\"_s, item, u"/x y"_s, item, u"\""_s}))
                << qPrintable(item);
        }
    }
    EXPECT_EQ(BuildCommandTail({u"/a b"_s, u"|/c\\"_s}), u"/a b |/c\\"_s) << "a list is unquoted";
    const char* const arguments[] = {"program", "\xFF.rnp", "\xC3\xBC"};
    EXPECT_EQ(ArgumentsOf(3, arguments), (QStringList{u"\xDCFF.rnp"_s, u"\u00FC"_s}));
}

TEST(TypeText, ComesFromTheLastExtensionInAnyCase)
{
    TypeTexts types;
    const QString unknown = types.OfFile(u"name"_s), text = types.OfFile(u"a.txt"_s);
    EXPECT_TRUE(!unknown.isEmpty() && text != unknown);
    EXPECT_EQ(types.OfFile(u"a.jpg.TXT"_s), text);
    EXPECT_EQ(types.OfFile(u"a.b.JPEG"_s), u"JPEG Image"_s);
    for (const QString& name : {u"a.qqqxx"_s, u"a.jpg."_s, u"a.\xDCFF"_s, u"Makefile"_s, u"name"_s}) {
        EXPECT_EQ(types.OfFile(name), unknown) << qPrintable(name);
    }
}

} // namespace
