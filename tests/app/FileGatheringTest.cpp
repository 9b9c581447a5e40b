// SPDX-License-Identifier: MIT
#include "app/FileGathering.h"

#include "app/FileListFile.h"
#include "app/FolderModel.h"
#include "support/Recorder.h"
#include "support/TempFolder.h"

#include <QAbstractItemModelTester>

namespace {

using app::FileGathering;

// What the main window would show.
class View final : public app::GatheringView
{
public:
    void Log(const QString& line) override { log << line; }
    void ScanBegins() override { log << u"<"_qs; }
    void ScanEnds() override { log << u">"_qs; }
    void ShowCount(int number) override { count = number; }
    void ShowAllChecked() override { isAllChecked = true; }
    void ShowFileTypes(const QStringList& entries) override { types = entries; }
    void RefreshRenameView() override { ++refreshes; }
    void EndProgram() override { hasEnded = true; }

    QStringList log, types;
    int count = -1, refreshes = 0;
    bool isAllChecked = false, hasEnded = false;
};

// A tree with music and texts, and in `sub` and `other` more of both.
class Gathering : public testing::Test
{
protected:
    void SetUp() override
    {
        for (const QString& name :
             {u"b.txt"_qs, u"Song.mp3"_qs, u"a.txt"_qs, u"sub/c.txt"_qs, u"other/d.mp3"_qs}) {
            folder.Write(name, name.toUtf8());
        }
    }

    QString Path(const QString& name = {}) const { return folder.Path() + name; }
    QString Names() const { return rows.Col(fileview::FileList::Name, u" "_qs, false); }
    QString TypeOf(const QString& name) { return platform::TypeTexts().OfFile(name); }

    testing_support::TempFolder folder;
    model::AppState state;
    testing_support::Recorder host{state.StopFlag};
    fileview::FileList rows;
    fileview::ScanSettings settings;
    fileview::Scanner scanner{rows, settings, host, state};
    View view;
    FileGathering gathering{{rows, settings, scanner}, state, host, view};
};

TEST_F(Gathering, AFolderFillsTheListSortedByName)
{
    gathering.FolderSelected(Path());
    EXPECT_EQ(Names(), u"a.txt b.txt other Song.mp3 sub"_qs);
    EXPECT_EQ(view.log, (QStringList{u"Searching "_qs + Path(), u"Press 'Stop Search' anytime to Stop"_qs,
                                     u"<"_qs, u">"_qs, u"5 file(s) found"_qs}));
    EXPECT_TRUE(view.count == 5 && state.CheckedCount == 0 && state.FileListChanged &&
                state.LastFolder == Path());

    view.log.clear();
    state.AllSelected = state.AutoRefreshRenameView = 1;
    gathering.SearchSubfolders(true);
    EXPECT_EQ(Names(), u"a.txt b.txt other Song.mp3 sub d.mp3 c.txt"_qs) << "now by folder";
    EXPECT_TRUE(view.isAllChecked && state.CheckedCount == 7);
    EXPECT_EQ(view.log.mid(0, 2), (QStringList{u"Subdirectory Search Activated. "_qs,
                                               u"Searching Subdirectories of  "_qs + Path() +
                                                   u"... .Press 'Stop Search' to Stop"_qs}));
    gathering.FolderSelected(Path(u"other"_qs));
    EXPECT_TRUE(Names() == u"d.mp3"_qs &&
                view.log.contains(u"Searching "_qs + Path(u"other its subdirectories"_qs)));
    EXPECT_EQ(view.refreshes, 1);

    state.SkipNextFolderEvent = true;
    gathering.FolderSelected(Path());
    EXPECT_TRUE(Names() == u"d.mp3"_qs && !state.SkipNextFolderEvent) << "the files handed over stay";
}

TEST_F(Gathering, FiltersNarrowTheList)
{
    gathering.FolderSelected(Path());
    EXPECT_EQ(view.types, (QStringList{u"*.*"_qs, u"All Files"_qs, TypeOf(u"a.txt"_qs), u"File Folder"_qs,
                                       TypeOf(u"a.mp3"_qs)}));
    for (const auto& [type, names] : {std::pair(u"All Files"_qs, u"a.txt b.txt Song.mp3"_qs),
                                      {TypeOf(u"a.mp3"_qs), u"Song.mp3"_qs},
                                      {u"*.*"_qs, u"a.txt b.txt other Song.mp3 sub"_qs},
                                      {u"File Folder"_qs, u"other sub"_qs}}) {
        gathering.FilterByType(type);
        EXPECT_EQ(Names(), names) << type.toStdString();
        EXPECT_EQ(state.FileTypeFilter, type);
    }
    gathering.FilterByName(u"SO"_qs);
    EXPECT_EQ(Names(), u"Song.mp3"_qs) << "the type filter is forgotten";
    gathering.FilterByName({});
    EXPECT_EQ(rows.Count(), 5);
    gathering.CheckAll(true);
    EXPECT_TRUE(view.count == 5 && state.CheckedCount == 5);
    gathering.FilterByName(u"a"_qs);
    EXPECT_TRUE(Names() == u"a.txt"_qs && state.CheckedCount == 0) << "checks follow the preference";

    platform::FileSystem files;
    rows.AddFile(Path(), u"gone.txt"_qs, files);
    state.KeepFileTypes = true;
    gathering.RebuildFileTypes();
    gathering.FilterByType(u"*.*"_qs);
    EXPECT_EQ(rows.Count(), 5) << "the copy is kept";
    state.KeepFileTypes = false;
    rows.AddFile(Path(), u"gone.txt"_qs, files);
    gathering.RebuildFileTypes();
    gathering.FilterByType(u"*.*"_qs);
    EXPECT_EQ(rows.Count(), 5) << "a file that isn't there passes no type";
}

TEST_F(Gathering, SeveralFoldersAreGatheredByTheirChecks)
{
    gathering.FolderSelected(Path());
    gathering.SetMultipleFolders(true);
    EXPECT_EQ(rows.Count(), 0);
    state.AllSelected = 1;
    gathering.FolderChecked(Path(u"sub"_qs), true);
    gathering.FolderChecked(Path(u"other"_qs), true);
    EXPECT_EQ(Names(), u"d.mp3 c.txt"_qs);
    EXPECT_EQ(state.CheckedCount, 2);
    EXPECT_TRUE(view.log.contains(u"1 file(s) found."_qs));
    gathering.FolderSelected(Path());
    EXPECT_EQ(rows.Count(), 2) << "a choice alone gathers nothing";
    gathering.FolderChecked(Path(u"sub"_qs), false);
    EXPECT_EQ(Names(), u"d.mp3"_qs) << "exactly its rows go";
    gathering.SetMultipleFolders(false);
    EXPECT_EQ(rows.Count(), 0);
}

TEST_F(Gathering, AStopKeepsWhatWasFoundAndAQuitEndsTheProgram)
{
    settings.Recursive = true;
    QObject::connect(&scanner, &fileview::Scanner::SearchDirChange, &scanner, [this](const QString& path) {
        if (path.endsWith(u"other"_qs)) {
            EXPECT_TRUE(gathering.IsScanning());
            gathering.Stop();
        }
    });
    gathering.FolderSelected(Path());
    EXPECT_TRUE(scanner.Stopped() && !gathering.IsScanning() && !view.hasEnded);
    EXPECT_LT(rows.Count(), 7);
    QObject::connect(&scanner, &fileview::Scanner::SearchDirChange, &scanner,
                     [this] { state.ClosingDown = true; });
    view.types.clear();
    gathering.FolderSelected(Path());
    EXPECT_TRUE(view.hasEnded && view.types.isEmpty());
}

TEST_F(Gathering, AClickIntoTheListCounts)
{
    gathering.FolderSelected(Path());
    state.AutoRefreshRenameView = 1;
    gathering.ListClicked();
    EXPECT_EQ(view.refreshes, 0) << "nothing changed";
    rows.SetChecked(2, true);
    gathering.ListClicked();
    EXPECT_TRUE(view.refreshes == 1 && view.count == 1);
}

TEST_F(Gathering, FileListsOfBothFormsComeBack)
{
    testing_support::TempFolder lists;
    const QString path = lists.Path() + u"a.lst"_qs;
    gathering.FolderSelected(Path());
    rows.SetChecked(1, true);
    rows.SetChecked(3, true);
    const auto saved = [&](auto save) {
        EXPECT_TRUE(save(path, rows).IsOk());
        return QString::fromUtf8(lists.Content(u"a.lst"_qs)).replace(folder.Path(), u"<>"_qs);
    };
    const QString first = u"Tarnwick File List\r\n"_qs;
    EXPECT_EQ(saved(app::SaveManagedList), u"<>a.txt\r\n<>other\r\n"_qs);
    EXPECT_EQ(saved(app::SaveFileList), first + u"<>\r\na.txt\r\n<>\r\nother\r\n"_qs);
    EXPECT_TRUE(gathering.LoadList(path));
    EXPECT_EQ(Names(), u"a.txt other"_qs);
    EXPECT_TRUE(state.CheckedCount == 2 && view.count == 2 && settings.Path == u"0"_qs);
    gathering.FilterByName(u"o"_qs);
    EXPECT_EQ(Names(), u"other"_qs) << "the filter reads from what was loaded";

    // A list's text, whether it is one, and the rows afterwards.
    const std::tuple<QString, bool, QString> rowsOfLists[] = {
        {first, true, {}},
        {first + u"<>\na.txt\n<>"_qs, true, u"a.txt"_qs}, // the last folder has no name
        {first + u"<>\ngone\n<>sub/\nc.txt\n"_qs, true, u"c.txt gone"_qs},
        {u"Tarnwick File List \n<>\na.txt\n"_qs, false, u"c.txt gone"_qs},
        {{}, false, u"c.txt gone"_qs},
    };
    for (const auto& [text, isList, names] : rowsOfLists) {
        lists.Write(u"a.lst"_qs, QString(text).replace(u"<>"_qs, folder.Path()).toUtf8());
        EXPECT_EQ(gathering.LoadList(path), isList) << text.toStdString();
        QStringList listed = Names().split(u' ', Qt::SkipEmptyParts);
        listed.sort();
        EXPECT_EQ(listed.join(u' '), names) << text.toStdString();
    }
    EXPECT_EQ(rows.Item(1).Type.isEmpty() + rows.Item(2).Type.isEmpty(), 1) << "a file that is gone has none";

    QStringList missing;
    const auto isMissing = [&](const QString& file) {
        missing << QString(file).remove(folder.Path());
    };
    state.AllSelected = 0;
    lists.Write(u"a.lst"_qs, (Path(u"gone\r\n"_qs) + Path(u"sub/c.txt\r\n\r\n"_qs)).toUtf8());
    EXPECT_TRUE(gathering.LoadManaged(path, isMissing).IsOk());
    EXPECT_TRUE(missing == QStringList{u"gone"_qs} && rows.Count() == 2 && state.CheckedCount == 0);
    EXPECT_EQ(gathering.LoadManaged(lists.Path() + u"none"_qs, isMissing).Description(),
              u"File not found"_qs);
    EXPECT_EQ(rows.Count(), 2);

    folder.Write(u"line\nbreak"_qs);
    gathering.FolderSelected(Path());
    rows.SetCheckedAll(true);
    EXPECT_FALSE(app::SaveFileList(path, rows).IsOk()) << "one can't be told in a line";
    EXPECT_TRUE(gathering.LoadList(path) && rows.Count() == 5);
}

TEST(Folders, AreReadWhenTheyAreNeeded)
{
    testing_support::TempFolder folder;
    for (const QString& name : {u"b"_qs, u"A/deep/er"_qs, u".hidden"_qs, u"\xDCFF"_qs}) {
        folder.MakeFolder(name);
    }
    folder.Write(u"file"_qs);
    app::FolderModel model(
        {{u"Twice"_qs, folder.Path()}, {u"Again"_qs, folder.Path()}, {u"None"_qs, u"/no/such"_qs}});
    EXPECT_EQ(model.rowCount(), 1);
    // It opens all folders itself, which no model stands during a reset.
    const auto newTester = [&] {
        return std::make_unique<QAbstractItemModelTester>(
            &model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    };
    auto tester = newTester();
    const QModelIndex index = model.IndexOf(folder.Path());
    ASSERT_TRUE(index.isValid());
    EXPECT_EQ(model.PathOf(index) + u'/', folder.Path());
    model.fetchMore(index);
    QString names;
    for (int row = 0; row < model.rowCount(index); ++row) {
        names += model.index(row, 0, index).data().toString() + u' ';
    }
    EXPECT_EQ(names, u"A b \xDCFF "_qs);
    EXPECT_EQ(model.PathOf(model.IndexOf(folder.Path() + u"A/deep/er"_qs)), folder.Path() + u"A/deep/er"_qs);
    EXPECT_FALSE(model.IndexOf(folder.Path() + u".hidden"_qs).isValid());
    EXPECT_FALSE(model.IndexOf(folder.Path() + u"none"_qs).isValid());
    tester.reset();
    model.SetShowsHidden(true);
    tester = newTester();
    EXPECT_TRUE(model.IndexOf(folder.Path() + u".hidden"_qs).isValid());
    const QModelIndex checked = model.IndexOf(folder.Path() + u"b"_qs);
    EXPECT_FALSE(model.setData(checked, Qt::Checked, Qt::CheckStateRole)) << "not in single folder mode";
}

} // namespace
