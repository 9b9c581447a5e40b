// SPDX-License-Identifier: MIT
#include "fileview/ListCommands.h"

#include "fileview/ListFixture.h"
#include "support/Refusals.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>

namespace {

using namespace fileview;

class Commands : public fileview_tests::ListFixture
{
protected:
    // Copies or moves all these, checked.
    void TransferAll(const QString& names, const QString& target, Transfer transfer)
    {
        list.Clear();
        List(names);
        list.SetCheckedAll(true);
        TransferChecked(list, folder.Path() + target, transfer, host);
    }

    // What lies in a folder, with what files begin with.
    QString Picture(const QString& subfolder) const
    {
        QString picture;
        for (const QString& name : folder.Names(subfolder)) {
            const QString path = subfolder + u'/' + name;
            picture += testing_support::fs::is_directory(qPrintable(folder.Path() + path))
                           ? name + u'(' + Picture(path) + u") "_qs
                           : name + u'=' + QString::fromUtf8(folder.Content(path).left(6)) + u' ';
        }
        return picture.trimmed();
    }
};

TEST_F(Commands, CheckRowsByDateFolderAndAll)
{
    ListTexts(u"2024/3/7 1:05:09|2024/3/7 1:59:00|2024/3/7 2:05:09|2024/12/31 1:00:00|2024/12/31 9:00:00|"_qs,
              FileList::Date);
    for (const int row : {1, 3, 6}) {
        list.SetCell(row, FileList::Path, row == 3 ? u"/A"_qs : u"/a"_qs);
    }
    const std::tuple<const char*, void (*)(FileList&), std::vector<int>> steps[] = {
        {"a short date lets the hour in", [](FileList& rows) { CheckDate(rows, 2, true); }, {1, 2}},
        {"a long one doesn't", [](FileList& rows) { CheckDate(rows, 5, true); }, {1, 2, 4, 5}},
        {"taken away", [](FileList& rows) { CheckDate(rows, 1, false); }, {4, 5}},
        {"the folder's, to the letter", [](FileList& rows) { CheckDirectory(rows, 6, true); }, {1, 4, 5, 6}},
        {"inverted", [](FileList& rows) { mnuCheck_Click(rows, 2); }, {2, 3}},
        {"no date is selected", [](FileList& rows) { CheckDate(rows, 0, true); }, {2, 3}},
        {"all", [](FileList& rows) { mnuCheck_Click(rows, 0); }, {1, 2, 3, 4, 5, 6}},
    };
    for (const auto& [name, run, checked] : steps) {
        run(list);
        std::vector<int> items;
        list.GetCheckedItems(items);
        EXPECT_EQ(items, checked) << name;
    }
}

TEST_F(Commands, CopyingReplacesWhatIsThereAndMovingKeepsIt)
{
    Make(u"a/f a/g a/d.d/in a/new/in b/d.d/old b/f"_qs);
    List(u"a/gone a/f a/g a/d.d"_qs);
    list.SetCheckedAll(true);
    list.SetChecked(3, false);
    bool hasYielded = false;
    host.AtYield(4, [&hasYielded] { hasYielded = true; });
    TransferChecked(list, folder.Path() + u'b', Transfer::Copy, host);
    EXPECT_TRUE(hasYielded) << "after every row, checked or not";
    EXPECT_EQ(Picture(u"b"_qs), u"d.d(in=a/d.d/ old=b/d.d/) f=a/f"_qs);
    const QString begin = u"max %1; value 0; status %2 Selected Files...; value 1; value 2; value 3; "_qs;
    const QString end = u"status Ready; value 0"_qs;
    EXPECT_EQ(host.TakeEvents(), begin.arg(u"3"_qs, u"Copying"_qs) + end) << "no value past the maximum";
    folder.Write(u"b/f"_qs, "old");
    TransferAll(u"a/f a/d.d a/new"_qs, u"b/"_qs, Transfer::Move);
    EXPECT_EQ(Picture(u"a"_qs), u"d.d(in=a/d.d/) f=a/f g=a/g"_qs);
    EXPECT_EQ(Picture(u"b"_qs), u"d.d(in=a/d.d/ old=b/d.d/) f=old new(in=a/new/)"_qs);
    EXPECT_EQ(host.TakeEvents(), begin.arg(u"3"_qs, u"Moving"_qs) + end);
    EXPECT_EQ(Rows(), u"a/f* a/d.d* a/new*"_qs) << "rows keep their old paths";
}

TEST_F(Commands, AFolderThatCannotTakeThemLeavesAllAsItWas)
{
    Make(u"a/f a/d/in b/f"_qs);
    folder.Write(u"a/big"_qs, QByteArray(100'000, 'x'));
    folder.Write(u"a/d/z"_qs, QByteArray(100'000, 'x'));
    const QString before = Picture(u"a"_qs);
    for (const QString& target : {u"a"_qs, u"none"_qs, u"a/f"_qs}) {
        TransferAll(u"a/f a/big a/d"_qs, target, Transfer::Copy);
        TransferAll(u"a/f a/big a/d"_qs, target, Transfer::Move);
        EXPECT_EQ(Picture(u"a"_qs), before) << qPrintable(target);
    }
    const testing_support::FullDisk limit(50'000);
    TransferAll(u"a/big a/d a/f"_qs, u"b"_qs, Transfer::Copy);
    EXPECT_EQ(Picture(u"b"_qs), u"f=a/f"_qs) << "nothing by halves";
}

TEST_F(Commands, OpenAFileAndItsFolderWithTheDesktop)
{
    const QByteArray path = qgetenv("PATH"), home = folder.Path().toUtf8(), pipe = home + "opened";
    ASSERT_EQ(::mkfifo(pipe.constData(), 0666), 0);
    const int opened = ::open(pipe.constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    folder.Write(u"xdg-open"_qs, "#!/bin/sh\nprintf '%s' \"$*\" > '" + pipe + "'\n");
    folder.SetMode(u"xdg-open"_qs, 0755);
    qputenv("PATH", home + ':' + path);
    ListTexts(u"a b%\xDCFF#?\u00FC.txt"_qs, FileList::Name);
    for (const auto& [open, name] : {std::pair(&OpenRow, "a%20b%25%FF%23%3F%C3%BC.txt"), {&ExploreRow, ""}}) {
        open(list, 0);
        open(list, 1);
        pollfd waiting{opened, POLLIN, 0};
        ASSERT_EQ(::poll(&waiting, 1, 60'000), 1) << name;
        QByteArray told(1000, '\0');
        told.truncate(::read(opened, told.data(), 1000));
        EXPECT_EQ(told, "file://" + home + name);
    }
    qputenv("PATH", path);
    ::close(opened);
}

} // namespace
