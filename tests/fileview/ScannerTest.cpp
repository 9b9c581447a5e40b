// SPDX-License-Identifier: MIT
#include "fileview/DroppedPaths.h"
#include "fileview/ListFixture.h"
#include "support/Refusals.h"

namespace {

using namespace fileview;

class Scan : public fileview_tests::ListFixture
{
protected:
    Scan()
    {
        QObject::connect(&scanner, &Scanner::SearchDirChange, [this](const QString& path) { told += path; });
        QObject::connect(&scanner, &Scanner::ScanFinish,
                         [this](bool stopped) { told += stopped ? u'!' : u'.'; });
    }

    // What a scan finds, sorted.
    QString Found(const QString& spec, bool isRecursive)
    {
        settings.FileSpec = spec;
        settings.Recursive = isRecursive;
        scanner.Scan();
        QStringList rows = Rows().split(u' ');
        rows.sort();
        return rows.join(u' ');
    }

    QString told; // folders entered, and scans that ended: "." or, where they were stopped, "!"
};

TEST_F(Scan, FindsNamesByTheirPatternThoseInSubfoldersFirst)
{
    const QString longest(255, u'x'), byte = QChar(0xDCFF) + u".bin"_qs;
    Make(u"Photo.JPG pic.jpg.bak noext .hidden \u0130.txt s.jpg/a.jpg s.jpg/.in/\U0001F600.jpg"_qs);
    Make(longest + u' ' + byte);
    folder.MakeLink(u"loop.jpg"_qs, u"."_qs);
    folder.MakeLink(u"s.jpg/up.jpg"_qs, u".."_qs);
    folder.MakeLink(u"gone"_qs, u"nowhere"_qs);
    const QString all = folder.Names().join(u' '), deep = u" s.jpg/.in/\U0001F600.jpg s.jpg/a.jpg"_qs;
    const std::tuple<const char*, QString, bool, QString> cases[] = {
        {"everything, with a dot or without", u"*.*"_qs, false, all},
        {"links are listed, not walked into", u"*.JPG"_qs, true,
         u"Photo.JPG loop.jpg s.jpg"_qs + deep + u" s.jpg/up.jpg"_qs},
        {"one character, whatever its bytes", u"?.jpg"_qs, true, u"s.jpg"_qs + deep},
        {"one byte that is no character", u"?.bin"_qs, false, byte},
        {"one that is two in lower case", u"?.txt"_qs, false, u"\u0130.txt"_qs},
        {"stars for much and for nothing", u"P*c*.*k*"_qs, false, u"pic.jpg.bak"_qs},
        {"nothing has that name", u"ggg*22139"_qs, false, {}},
        {"what could be tried for ages", u"*x"_qs.repeated(60) + u'y', false, {}},
        {"the longest name", u"?"_qs.repeated(255), false, longest},
    };
    for (const auto& [name, spec, isRecursive, found] : cases) {
        EXPECT_EQ(Found(spec, isRecursive), found) << name;
    }
    Found(u"*"_qs, true);
    EXPECT_LT(Rows().indexOf(u".in/\U0001F600.jpg"_qs), Rows().indexOf(u"/a.jpg"_qs));
    EXPECT_LT(Rows().indexOf(u"/a.jpg"_qs), Rows().indexOf(u"Photo.JPG"_qs));
}

TEST_F(Scan, AStopEndsItAtTheNextEntryAndLastsUntilItIsReset)
{
    Make(u"sub/deep/x.txt"_qs);
    settings.Recursive = true;
    QStringList results;
    for (int yield = 2; yield <= 10; ++yield) {
        host.AtYield(yield, [this] { scanner.StopScan(); });
        scanner.Scan();
        results << Rows();
    }
    EXPECT_EQ(results.mid(0, 3), QStringList(3, {})) << "within the walk of subfolders";
    results.removeDuplicates();
    EXPECT_EQ(results, (QStringList{{}, u"sub/deep/x.txt"_qs, u"sub/deep/x.txt sub/deep"_qs}));
    EXPECT_EQ(told.count(u'!'), 9);
    for (const int rows : {2, 5}) {
        scanner.ScanPass(folder.Path(), false);
        EXPECT_EQ(list.Count(), rows) << "a drop adds nothing before the flag is reset";
        scanner.ResetStopFlag();
    }
}

TEST_F(Scan, ThatIsRefusedChangesNothingAndOneOfNothingEmptiesTheList)
{
    List(u"a.txt"_qs);
    const auto cancel =
        QObject::connect(&scanner, &Scanner::BeforeScanStart, [](bool& Cancel) { Cancel = true; });
    scanner.Scan();
    QObject::disconnect(cancel);
    for (const auto& [path, spec] : {std::pair(u"/"_qs, u""_qs), {u""_qs, u"*.*"_qs}, {u"0"_qs, u"*.*"_qs}}) {
        EXPECT_EQ(told + host.TakeEvents() + Rows(), u"a.txt"_qs);
        settings = {path, spec};
        scanner.Scan();
    }
    EXPECT_EQ(told + Rows(), u"0."_qs);
}

TEST_F(Scan, ShowsItsProgressUntilTheProgramEndsAndPassesOverALockedFolder)
{
    Make(u"sub/x"_qs);
    settings.Path.chop(1);
    settings.Recursive = true;
    scanner.Scan();
    const QString loading = u"status Loading Files...; "_qs, ready = u"value 0; status Ready"_qs;
    const QString work = u"max 0; value 0; %1max 1; value 0; %1value 1; value 0; value 1; "_qs.arg(loading);
    EXPECT_EQ(host.TakeEvents(), work + ready + u"; value 1; value 0; value 1; "_qs + ready)
        << "the folder below leaves its maximum to the one above";
    EXPECT_EQ(told, settings.Path + settings.Path + u"/sub."_qs);
    state.ClosingDown = true;
    scanner.Scan();
    EXPECT_EQ(host.TakeEvents(), work + u"value 0; value 1"_qs);
    folder.SetMode(u"sub"_qs, 0);
    const testing_support::OrdinaryUser user;
    EXPECT_EQ(Found(u"*.*"_qs, true), u"sub"_qs);
    int count = -1;
    EXPECT_TRUE(GetFileCount(folder.Path(), count).IsOk() && count == 0);
    EXPECT_EQ(GetFileCount(u"/none"_qs, count).Description(),
              u"Error form Functions.GetFileCount Invalid path  given"_qs);
}

TEST_F(Scan, AnnouncesRowsManyAtATimeAndLeavesThemSorted)
{
    for (int file = 0; file < 250; ++file) {
        folder.Write(QString::number(file * 7919 % 1000 + 1000));
    }
    QList<int> seen;
    QObject::connect(&list, &FileList::rowsInserted, [&](auto&, int, int last) { seen << last + 1; });
    const QString sorted = Found(u"*"_qs, false);
    EXPECT_EQ(seen, (QList<int>{100, 200, 250})) << "twice during the scan, and the rest behind it";
    list.SortCustom(FileList::Name, true, ldtString);
    for (const int frequency : {100, 50, 0}) {
        settings.UpdateFrequency = frequency;
        scanner.Scan();
        EXPECT_TRUE(Rows() == sorted && list.rowCount() == 250) << "repainted every " << frequency;
    }
}

TEST_F(Scan, DroppedFilesAndFoldersAreListedOnceSortedByFolder)
{
    for (const QString& row : {u"*.* a.txt"_qs, u"* a.b"_qs, u"*.jpg a.JPG"_qs, u"*.jpg a.jp"_qs,
                               u"*.jpg /x.b/a"_qs, u"*.jpg a.png no"_qs, u"*.jpg a.jpge no"_qs}) {
        const QStringList words = row.split(u' ');
        EXPECT_EQ(PassesFileSpec(words[1], words[0]), words.size() == 2) << qPrintable(row);
    }
    Make(u"one/a.jpg one/b.png two/c.jpg d.png e."_qs);
    settings.FileSpec = u"*.jpg"_qs;
    const auto drop = [this](const QString& names, bool clearsList) {
        const QString paths = folder.Path() + QString(names).replace(u' ', u' ' + folder.Path());
        const DropCounts counts = TakeDrop(paths.split(u' '), list, scanner, settings, clearsList);
        FinishDrop(list);
        return u"%1 %2 %3: "_qs.arg(counts.Total).arg(counts.Files).arg(counts.Folders) + Rows();
    };
    EXPECT_EQ(drop(u"two e. d.png one e."_qs, false), u"5 3 2: e. one/a.jpg two/c.jpg"_qs);
    EXPECT_EQ(drop(u"two one e."_qs, true), u"3 1 2: e. one/a.jpg"_qs) << "each folder clears the list";
    EXPECT_EQ(drop(u"two/"_qs, true), u"1 0 1: two/c.jpg"_qs) << "with a separator at its end";
}

} // namespace
