// SPDX-License-Identifier: MIT
#include "support/WorkspaceFixture.h"

namespace {

using namespace workspace;

const QString Done = u"Rename Successful"_qs;
const QString Exists = u"File already exists"_qs;

using Execution = testing_support::WorkspaceFixture;

TEST_F(Execution, EveryRowIsMovedOrToldInTheirOrder)
{
    const std::tuple<const char*, QString, QString, QString> rows[] = {
        {"a plain rename", u"ok.txt"_qs, u"\U0001F600.txt"_qs, Done},
        {"only the case changes", u"case.txt"_qs, u"CASE.txt"_qs, Done},
        {"a name that is no UTF-8", QChar(0xDCFF) + u".txt"_qs, u"byte.txt"_qs, Done},
        {"nothing changes", u"same.txt"_qs, u"same.txt"_qs, Exists},
        {"no new name", u"empty.txt"_qs, u""_qs, Exists},
        {"the source has vanished", u"gone.txt"_qs, u"gone2.txt"_qs, u"File not found"_qs},
        {"the target exists", u"clash.txt"_qs, u"taken.txt"_qs, Exists},
        {"a chain that blocks itself", u"1"_qs, u"2"_qs, Exists},
        {"but for its last", u"2"_qs, u"3"_qs, Done},
        {"a chain that gives way", u"5"_qs, u"6"_qs, Done},
        {"from its end", u"4"_qs, u"5"_qs, Done},
        {"a swap", u"7"_qs, u"8"_qs, Exists},
        {"both ways", u"8"_qs, u"7"_qs, Exists},
        {"the first of two", u"two1.txt"_qs, u"two.txt"_qs, Done},
        {"the second of two", u"two2.txt"_qs, u"two.txt"_qs, Exists},
        {"into a folder", u"into.txt"_qs, u"sub/in.txt"_qs, Done},
        {"a folder", u"old.dir/"_qs, u"new.dir"_qs, Done},
        {"a folder onto another", u"full.dir/"_qs, u"sub"_qs, Exists},
        {"a vanished folder", u"lost.dir/"_qs, u"lost2.dir"_qs, u"Path not found"_qs},
    };
    QStringList files, previews, promoted, onDisk{u"taken.txt"_qs, u"sub"_qs};
    for (const auto& [name, original, preview, result] : rows) {
        files.append(original);
        previews.append(preview);
        promoted.append(preview.isEmpty() ? original : preview);
        onDisk.append(result == Done ? preview : original.section(u'/', 0, 0));
    }
    folder.Write(u"taken.txt"_qs, "taken.txt");
    folder.Write(u"old.dir/inside.txt"_qs);
    folder.MakeFolder(u"sub"_qs);
    Files(files);
    Propose(previews);
    for (const QString& vanished : {u"gone.txt"_qs, u"lost.dir"_qs}) {
        Remove(vanished);
        onDisk.removeOne(vanished);
    }
    ASSERT_TRUE(workspace.cmdExecute_Click());
    const QStringList told = Results();
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        const auto& [name, original, preview, result] = rows[i];
        EXPECT_EQ(told.value(qsizetype(i)), result) << name;
        if (result == Done && preview != u"new.dir") {
            EXPECT_EQ(folder.Content(preview), original.toUtf8()) << name;
        }
    }
    EXPECT_EQ(Column(GridPre::Original), promoted) << "failed rows too";
    EXPECT_EQ(Column(GridPre::Preview).join(QString()), QString());
    ASSERT_TRUE(workspace.cmdExecute_Click()) << "a second click has no new names";
    EXPECT_FALSE(Results().isEmpty() || Results().contains(Done));
    EXPECT_EQ(folder.Content(u"taken.txt"_qs), QByteArray("taken.txt"));
    EXPECT_EQ(folder.Names(u"sub"_qs) + folder.Names(u"new.dir"_qs),
              QStringList({u"in.txt"_qs, u"inside.txt"_qs}));
    onDisk.removeOne(u"sub/in.txt"_qs);
    onDisk.sort();
    EXPECT_EQ(folder.Names(), onDisk);
}

TEST_F(Execution, NeedsAPreviewTellsItsEndAndSavesItsLogUnderTheMomentOfTheStart)
{
    Files({u"a"_qs});
    host.Announce(u"Renamer"_qs, u"Please Preview first,then Execute"_qs);
    EXPECT_FALSE(workspace.cmdExecute_Click());
    EXPECT_EQ(program.Names(), QStringList());

    state.ConfirmAfterRename = 1;
    const QDateTime night(QDate(2027, 1, 5), QTime(0, 3, 4));
    const QString early = u"Rename_Log01_05_202712_03_04_AM.txt"_qs,
                  late = u"Rename_Log11_14_202611_22_59_PM.txt"_qs;
    const std::tuple<QString, QDateTime, QStringList> rows[] = {
        {u"ab"_qs, clock.now, {}}, // no saved log unless asked for
        {u"bc"_qs, clock.now, {late}},
        {u"cd"_qs, clock.now, {late}}, // within the same second: replaced
        {u"de"_qs, night, {early, late}},
    };
    for (const auto& [names, moment, logs] : rows) {
        clock.now = moment;
        state.SaveLogFile = logs.isEmpty() ? 0 : 1;
        Propose({names.mid(1)});
        host.Announce(u"Quillmark"_qs, u"Files Renamed"_qs);
        EXPECT_TRUE(workspace.cmdExecute_Click());
        EXPECT_EQ(host.TakeEvents(),
                  u"max 1; value 0; value 1; message Quillmark: Files Renamed; status Ready; value 0"_qs);
        EXPECT_EQ(program.Names(), logs + QStringList(u"templog.log"_qs));
        const QString line =
            u"%1 : %2 : %3 : Rename Successful\r\n"_qs.arg(folder.Path(), names[0], names[1]);
        EXPECT_EQ(program.Content(u"templog.log"_qs), line.toUtf8());
        EXPECT_EQ(program.Content(program.Names().first()), line.toUtf8());
    }
}

TEST_F(Execution, AStopFlagLeftFromAPreviewRenamesNothingAndPromotesAll)
{
    Files({u"a"_qs});
    state.ConfirmAfterRename = state.AutoRefreshMainView = 1; // no message: an unasked-for one would fail
    Propose({u"b"_qs});
    state.StopFlag.Set();
    EXPECT_TRUE(workspace.cmdExecute_Click());
    EXPECT_FALSE(state.StopFlag.IsSet());
    EXPECT_EQ(folder.Names() + Column(GridPre::Original), QStringList({u"a"_qs, u"b"_qs}));
    EXPECT_EQ(program.Content(u"templog.log"_qs), QByteArray());
    EXPECT_EQ(MainListNames(), QStringList()) << "the new name doesn't exist";
}

TEST_F(Execution, AttributesAreNormalisedByPositionAndTheMainListThenHoldsTheRenamedFiles)
{
    Files({u"left"_qs, u"a"_qs, u"gone"_qs, u"sub/"_qs, u"b"_qs});
    mainList.SetChecked(1, false);
    workspace.Refreshrnm(); // row a stands beside the unchecked item, row b beside the one of the folder
    folder.SetMode(u"a"_qs, 0444);
    folder.SetMode(u"b"_qs, 0444);
    state.AutoNormalizeAttributes = state.AutoRefreshMainView = state.SaveLogFile = 1;
    program.MakeFolder(u"templog.log"_qs); // a log that can't be written stops nothing
    Propose({u"a2"_qs, u"gone2"_qs, u"sub2"_qs, u"b2"_qs});
    Remove(u"gone"_qs);
    workspace.cmdExecute_Click();
    EXPECT_EQ(folder.Mode(u"a2"_qs), 0444U);
    EXPECT_EQ(folder.Mode(u"b2"_qs) & 0200U, 0200U);
    EXPECT_EQ(MainListNames(), QStringList({u"a2 checked"_qs, u"b2 checked"_qs}));
    EXPECT_EQ(state.CheckedCount, 2);
    const QString events = host.TakeEvents();
    EXPECT_TRUE(events.startsWith(u"max 5; value 0; status Changing Attributes...; value 1; "_qs));
    EXPECT_TRUE(events.contains(u"status Ready; value 0; status Refreshing Main File View...; max 4; "_qs));
}

} // namespace
