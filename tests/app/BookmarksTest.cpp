// SPDX-License-Identifier: MIT
#include "app/Bookmarks.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace {

TEST(Bookmarks, KeepNamesAndFoldersTogether)
{
    testing_support::TempFolder home;
    const platform::ProgramFolder folder(home.Path());
    const auto text = [&](const app::Bookmarks& bookmarks) {
        QString all;
        for (const app::Bookmark& entry : bookmarks.Entries()) {
            all += entry.name + u'=' + entry.folder + u';';
        }
        return all;
    };
    app::Bookmarks bookmarks;
    bookmarks.Load(folder);
    EXPECT_EQ(text(bookmarks), QString()) << "no file";
    EXPECT_TRUE(bookmarks.Add(bookmarks.NextName(), u"/a"_qs) && bookmarks.Add(u"Trip"_qs, u"/b"_qs));
    EXPECT_FALSE(bookmarks.Add(u"again"_qs, u"/a"_qs));
    bookmarks.RemoveAt(-1);
    bookmarks.RemoveAt(2);
    bookmarks.Add(bookmarks.NextName(), u"/c"_qs);
    bookmarks.RemoveAt(1);
    bookmarks.Add(bookmarks.NextName(), u"/d"_qs);
    EXPECT_EQ(text(bookmarks), u"Bookmark 0=/a;Bookmark 2=/c;Bookmark 2=/d;"_qs) << "a name may repeat";
    bookmarks.Add(u"two\nlines"_qs, u"/e"_qs);
    EXPECT_TRUE(bookmarks.Save(folder).IsOk());
    EXPECT_EQ(home.Content(u"bookmarks.bks"_qs),
              "Bookmark 0\r\n/a\r\nBookmark 2\r\n/c\r\nBookmark 2\r\n/d\r\n");

    // A file, and what is read of it.
    for (const auto& [file, read] : std::initializer_list<std::pair<QByteArray, QString>>{
             {"a\r\n/a\r\n\r\n/b\r\nc\r\n\r\nd\n/d\n", u"a=/a;=/b;d=/d;"_qs},
             {"a\r\n/a\r\nlast\r\n", u"a=/a;"_qs},
             {"", QString()}}) {
        home.Write(u"bookmarks.bks"_qs, file);
        bookmarks.Load(folder);
        EXPECT_EQ(text(bookmarks), read) << file.toStdString();
    }
}

} // namespace
