// SPDX-License-Identifier: MIT
#include "platform/FileSystem.h"
#include "support/Refusals.h"
#include "support/TempFolder.h"

#include <QProcess>

#include <gtest/gtest.h>

using namespace platform;
using namespace testing_support;

namespace {

class Copying : public testing::Test
{
protected:
    Copying()
    {
        for (const QString& name : {u"from/a"_qs, u"from/dir/\xDCFF"_qs, u"from/private/b"_qs}) {
            folder.Write(name, ToBytes(name));
            folder.SetModified(name, 1'000'000'001);
        }
        folder.MakeLink(u"from/dir/dangling"_qs, u"nowhere"_qs);
        folder.MakeLink(u"from/dir/up"_qs, u".."_qs);
        folder.SetMode(u"from/a"_qs, 0440);
        folder.SetMode(u"from/private"_qs, 0700);
        folder.SetMode(u"from"_qs, 0755);
        folder.MakeFolder(u"locked"_qs);
        folder.SetMode(u"locked"_qs, 0555);
        folder.MakeFolder(u"closed"_qs);
        folder.SetMode(u"closed"_qs, 0);
        folder.SetMode({}, 0777);
    }

    // Every name in a subfolder with its mode, a file's time and size, and where a link leads.
    QByteArray Picture(const QString& subfolder) const
    {
        QProcess find;
        const QString format = u"find . -type f -printf '%p %m %T@ %s\\n' -o -printf '%p %m %l\\n' | sort"_qs;
        find.setWorkingDirectory(folder.Path() + subfolder);
        find.start(u"sh"_qs, {u"-c"_qs, format});
        find.waitForFinished();
        return find.readAll();
    }

    QString Copy(const QString& from, const QString& to)
    {
        return CopyFolder(folder.Path() + from, folder.Path() + to).Description();
    }

    TempFolder folder;
};

TEST_F(Copying, AFolderTakesAllWithItAndReplacesFilesThatAreThere)
{
    EXPECT_EQ(Copy(u"from/"_qs, u"from2/"_qs), QString()) << "a name that only begins alike";
    EXPECT_EQ(Picture(u"from2"_qs), Picture(u"from"_qs));
    folder.Write(u"from2/own"_qs, "own");
    fs::remove(qPrintable(folder.Path() + u"from2/private/b"_qs));
    folder.MakeLink(u"from2/private/b"_qs, u"../../from/a"_qs);
    folder.Write(u"from2/dir/\xDCFF"_qs, "changed and much longer than before");
    EXPECT_EQ(Copy(u"from"_qs, u"from2"_qs), QString()) << "again, links and all";
    EXPECT_EQ(folder.Content(u"from/a"_qs), "from/a") << "a link is replaced, not what it points at";
    EXPECT_EQ(folder.Content(u"from2/own"_qs) + folder.Content(u"from2/dir/\xDCFF"_qs), "ownfrom/dir/\xFF");
}

TEST_F(Copying, ThatIsRefusedLeavesAllAsItWas)
{
    folder.Write(u"big/x"_qs, QByteArray(100'000, 'x'));
    folder.MakeLink(u"same"_qs, u"from"_qs);
    const QByteArray before = Picture({});
    const std::pair<QString, QString> cases[] = {
        {u"Path not found"_qs, u"from > from, from > from/dir/../, from > from/dir/new, from > from/dir"_qs},
        {u"Path not found"_qs, u"from > same/new, none > new, from/a > new, from > none/new"_qs},
        {u"File already exists"_qs, u"from > big/x"_qs},
        {u"File too large"_qs, u"big > new"_qs},
        {u"Permission denied"_qs, u"closed > new, big > locked/new"_qs},
    };
    for (const auto& [failure, copies] : cases) {
        for (const QString& copy : copies.split(u", "_qs)) {
            {
                const OrdinaryUser user;
                const FullDisk limit(50'000);
                EXPECT_EQ(Copy(copy.section(u" > "_qs, 0, 0), copy.section(u" > "_qs, 1)), failure)
                    << qPrintable(copy);
            }
            EXPECT_EQ(Picture({}), before) << qPrintable(copy);
        }
    }
}

} // namespace
