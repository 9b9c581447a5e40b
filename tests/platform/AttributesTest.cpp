// SPDX-License-Identifier: MIT
#include "platform/Attributes.h"

#include "platform/UserStore.h"
#include "support/Refusals.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>

using namespace Qt::StringLiterals;
using namespace platform;
using namespace testing_support;

namespace {

constexpr char Name[] = "user.DOSATTRIB";

bool GiveMarks(const QString& path, const QByteArray& bytes)
{
    return ::setxattr(qPrintable(path), Name, bytes.constData(), size_t(bytes.size()), 0) == 0;
}

QByteArray MarksOf(const QString& path)
{
    char text[99];
    return {text, qMax<ssize_t>(0, ::getxattr(qPrintable(path), Name, text, sizeof text))};
}

TEST(Attributes, EveryValueComesBackAndReplacesTheOneBefore)
{
    struct Row
    {
        int value;
        unsigned mode;
        const char* marks; // what Windows clients see
    };
    const OrdinaryUser user; // permissions don't stop root
    TempFolder folder;
    folder.Write(u"file"_s);
    folder.MakeFolder(u"dir"_s);
    folder.MakeLink(u"link"_s, u"file"_s);
    const bool takesMarks = GiveMarks(folder.Path() + u"file"_s, "0x0");
    for (const QString& name : {u"file"_s, u"dir"_s, u"link"_s}) {
        folder.SetMode(name, 0777);
        // 33 while it is read-only; after that nobody but the owner may write again
        for (const auto& [value, mode, marks] :
             {Row{2, 0777, "0x2"}, Row{39, 0555, "0x26"}, Row{33, 0555, "0x20"}, Row{4, 0755, "0x4"},
              Row{1, 0555, ""}, Row{0, 0755, ""}}) {
            const QString path = folder.Path() + name;
            const int asked = value + (name == u"dir" ? attribute::Directory : 0);
            if (takesMarks || value <= 1) {
                EXPECT_EQ(SetAttr(path, asked).Description(), QString()) << qPrintable(name) << value;
                EXPECT_EQ(GetAttr(path), asked) << qPrintable(name);
                EXPECT_EQ(folder.Mode(name), mode) << value;
                EXPECT_EQ(MarksOf(path), QByteArray(marks)) << value;
            }
        }
    }
}

TEST(Attributes, MarksAreReadIfTheyAreTextsAndRemovedInAnyForm)
{
    TempFolder folder;
    folder.Write(u"file"_s);
    const QString path = folder.Path() + u"file"_s;
    for (const auto& [bytes, value] : std::initializer_list<std::pair<QByteArray, int>>{
             {"0x33", 34}, // the rest has another place
             {QByteArray("0x26\0\1\0x", 8), 38},
             {"22", 0},
             {"0x2y", 0},
             {QByteArray("\0\0\4\0\4\0\0\0\x51\0\0\0\x22\0\0\0", 16), 0},
             {QByteArray(300, '2'), 0}}) {
        if (!GiveMarks(path, bytes)) {
            GTEST_SKIP() << "the temporary folder's file system has no extended attributes";
        }
        EXPECT_EQ(GetAttr(path), value) << bytes.constData();
        EXPECT_TRUE(SetAttr(path, 0).IsOk() && MarksOf(path).isEmpty());
    }
}

TEST(Attributes, AFailureIsToldAndLeavesTheFileAsItWas)
{
    TempFolder folder;
    folder.Write(u"file"_s);
    folder.Write(u"group"_s);
    folder.SetMode(u"group"_s, 0666); // marks could be set, the mode not
    const OrdinaryUser user;
    TempFolder own;
    own.Write(u"file"_s);
    ASSERT_EQ(::mkfifo(qPrintable(own.Path() + u"pipe"_s), 0644), 0); // never has marks
    const QString denied = u"Permission denied"_s, noPath = u"Path not found"_s, noFile = u"File not found"_s;
    const std::tuple<QString, QString, int> rows[] = {
        {noFile, own.Path() + u"none"_s, 0},
        {noFile, own.Path() + u"file\0x"_s, 1},
        {noPath, own.Path() + u"none/x"_s, 0},
        {noPath, own.Path() + u"file/x"_s, 32},
        {u"Invalid procedure call or argument"_s, own.Path() + u"file"_s, 16 + 1},
        {denied, own.Path() + u"pipe"_s, 33},
        {QString(), own.Path() + u"pipe"_s, 1},
        {denied, own.Path() + u"pipe"_s, 2},
        {QString(), own.Path() + u"pipe"_s, 0},
        {::getuid() == 0 ? denied : QString(), folder.Path() + u"group"_s, 33}};
    for (const auto& [failure, path, value] : rows) {
        const auto before = GetAttr(path);
        const QString told = SetAttr(path, value).Description();
        if (told != u"Operation not supported") { // on a file system without marks
            EXPECT_EQ(told, failure) << qPrintable(path) << value;
        }
        EXPECT_EQ(GetAttr(path), told.isEmpty() ? value : before) << qPrintable(path) << value;
    }
}

TEST(UserStore, TellsApplicationsSectionsAndKeysApart)
{
    TempFolder home;
    home.Write(u"file"_s);
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", home.Path().toUtf8() + "new");
    EXPECT_TRUE(SaveSetting(u"App"_s, u"Places"_s, u"MainPos"_s, u"-30|a,b \u00FC"_s).IsOk());
    EXPECT_EQ(GetSetting(u"App"_s, u"Places"_s, u"MainPos"_s, u"1|2"_s), u"-30|a,b \u00FC"_s);
    EXPECT_EQ(GetSetting(u"App"_s, u"Other"_s, u"MainPos"_s, u"1|2"_s), u"1|2"_s);
    qputenv("XDG_CONFIG_HOME", home.Path().toUtf8() + "file");
    EXPECT_EQ(SaveSetting(u"a"_s, u"b"_s, u"c"_s, u"d"_s).Description(), u"Permission denied"_s);
    before.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", before);
}

} // namespace
