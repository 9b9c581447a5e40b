// SPDX-License-Identifier: MIT
#include "platform/FileSystem.h"
#include "support/WorkspaceFixture.h"

#include <cerrno>
#include <cstring>
#include <sys/stat.h>

namespace {

using namespace workspace;

const QString Done = u"Rename Successful"_qs;
const QString Exists = u"File already exists"_qs;

class Execution : public testing_support::WorkspaceFixture
{
protected:
    bool IsWritable(const QString& name) const
    {
        struct stat info
        {};
        return ::stat((folder.Path() + name).toUtf8().constData(), &info) == 0 &&
               (info.st_mode & S_IWUSR) != 0;
    }

    void MakeReadOnly(const QString& name) { ::chmod((folder.Path() + name).toUtf8().constData(), 0444); }

    void Remove(const QString& name) { ::remove((folder.Path() + name).toUtf8().constData()); }
};

TEST_F(Execution, EveryRowIsMovedOrTold)
{
    const QString byte = QChar(0xDCFF) + u".txt"_qs;
    const QString tooLong = QString(256, u'n');
    const struct
    {
        const char* name;
        QString original, preview, result;
    } rows[] = {
        {"a plain rename", u"ok.txt"_qs, u"\U0001F600.txt"_qs, Done},
        {"only the case changes", u"case.txt"_qs, u"CASE.txt"_qs, Done},
        {"a name that is no UTF-8", byte, u"byte.txt"_qs, Done},
        {"a longest name", u"long.txt"_qs, QString(255, u'n'), Done},
        {"a name that is too long", u"longer.txt"_qs, tooLong,
         QString::fromLocal8Bit(std::strerror(ENAMETOOLONG))},
        {"nothing changes", u"same.txt"_qs, u"same.txt"_qs, Exists},
        {"no new name", u"empty.txt"_qs, u""_qs, Exists},
        {"the source has vanished", u"gone.txt"_qs, u"gone2.txt"_qs, u"File not found"_qs},
        {"the target exists", u"clash.txt"_qs, u"taken.txt"_qs, Exists},
        {"the target is a folder", u"onto.txt"_qs, u"sub"_qs, Exists},
        {"the target is a dangling link", u"linked.txt"_qs, u"dangling"_qs, Exists},
        {"the first of two", u"two1.txt"_qs, u"two.txt"_qs, Done},
        {"the second of two", u"two2.txt"_qs, u"two.txt"_qs, Exists},
        {"into a folder", u"into.txt"_qs, u"sub/in.txt"_qs, Done},
        {"into a folder that isn't there", u"nowhere.txt"_qs, u"none/in.txt"_qs, u"Path not found"_qs},
        {"a folder", u"old.dir/"_qs, u"new.dir"_qs, Done},
        {"a folder onto another", u"full.dir/"_qs, u"sub"_qs, Exists},
        {"a vanished folder", u"lost.dir/"_qs, u"lost2.dir"_qs, u"Path not found"_qs},
    };
    QStringList files{u"taken.txt"_qs, u"sub/"_qs, u"old.dir/inside.txt"_qs};
    QStringList previews;
    QStringList results;
    QStringList promoted;
    for (const auto& row : rows) {
        files.append(row.original);
        previews.append(row.preview);
        results.append(row.result);
        promoted.append(row.preview.isEmpty() ? row.original : row.preview);
    }
    Files(files);
    for (int index = 1; index <= 3; ++index) {
        mainList.SetChecked(index, false);
    }
    folder.MakeLink(u"dangling"_qs, u"nothing"_qs);
    workspace.Refreshrnm();
    Propose(previews);
    Remove(u"gone.txt"_qs);
    Remove(u"lost.dir"_qs);
    ASSERT_TRUE(workspace.cmdExecute_Click());

    const QStringList told = Results();
    for (qsizetype i = 0; i < results.size(); ++i) {
        EXPECT_EQ(told.value(i), results[i]) << rows[i].name;
    }
    EXPECT_EQ(told.size(), results.size());
    EXPECT_EQ(Column(GridPre::Original), promoted) << "failed rows too";
    EXPECT_EQ(Column(GridPre::Preview).join(QString()), QString());
    EXPECT_EQ(folder.Content(u"taken.txt"_qs), QByteArray("taken.txt"));
    EXPECT_EQ(folder.Content(u"two.txt"_qs), QByteArray("two1.txt"));
    EXPECT_EQ(folder.Names(u"new.dir"_qs), QStringList({u"inside.txt"_qs}));
    QStringList expected{u"\U0001F600.txt"_qs, u"CASE.txt"_qs, u"byte.txt"_qs,   QString(255, u'n'),
                         u"longer.txt"_qs,     u"same.txt"_qs, u"empty.txt"_qs,  u"clash.txt"_qs,
                         u"taken.txt"_qs,      u"onto.txt"_qs, u"linked.txt"_qs, u"dangling"_qs,
                         u"two.txt"_qs,        u"two2.txt"_qs, u"sub"_qs,        u"nowhere.txt"_qs,
                         u"new.dir"_qs,        u"full.dir"_qs};
    expected.sort();
    EXPECT_EQ(folder.Names(), expected);

    ASSERT_TRUE(workspace.cmdExecute_Click()) << "a second click has no new names";
    EXPECT_EQ(Results().size(), results.size());
    EXPECT_FALSE(Results().contains(Done));
    EXPECT_EQ(folder.Names(), expected);
}

TEST_F(Execution, RowsAreRenamedInTheirOrderAndNoOther)
{
    const struct
    {
        const char* name;
        QStringList from, to, results;
    } rows[] = {
        {"a chain that blocks itself", {u"1"_qs, u"2"_qs}, {u"2"_qs, u"3"_qs}, {Exists, Done}},
        {"a chain that gives way", {u"3"_qs, u"1"_qs}, {u"4"_qs, u"3"_qs}, {Done, Done}},
        {"a swap", {u"3"_qs, u"4"_qs}, {u"4"_qs, u"3"_qs}, {Exists, Exists}},
    };
    folder.Write(u"1"_qs, "one");
    folder.Write(u"2"_qs, "two");
    for (const auto& row : rows) {
        mainList.Clear();
        List(row.from);
        workspace.Refreshrnm();
        Propose(row.to);
        workspace.cmdExecute_Click();
        EXPECT_EQ(Results(), row.results) << row.name;
    }
    EXPECT_EQ(folder.Content(u"4"_qs) + folder.Content(u"3"_qs), QByteArray("twoone"));
}

TEST_F(Execution, NeedsAPreviewAndShowsWhatItDoes)
{
    Files({u"a.txt"_qs});
    host.Announce(u"Renamer"_qs, u"Please Preview first,then Execute"_qs);
    EXPECT_FALSE(workspace.cmdExecute_Click());
    EXPECT_EQ(program.Names(), QStringList());

    state.ConfirmAfterRename = 1;
    Propose({u"b.txt"_qs});
    host.Announce(u"Quillmark"_qs, u"Files Renamed"_qs);
    EXPECT_TRUE(workspace.cmdExecute_Click());
    EXPECT_EQ(host.TakeEvents(),
              u"max 1; value 0; value 1; message Quillmark: Files Renamed; status Ready; value 0"_qs);
    EXPECT_EQ(program.Names(), QStringList({u"templog.log"_qs})) << "no saved log unless asked for";
    EXPECT_EQ(program.Content(u"templog.log"_qs),
              (folder.Path() + u" : a.txt : b.txt : Rename Successful\r\n"_qs).toUtf8());

    workspace.grid.Clear();
    host.Announce(u"Quillmark"_qs, u"Files Renamed"_qs);
    EXPECT_TRUE(workspace.cmdExecute_Click());
    EXPECT_EQ(program.Content(u"templog.log"_qs), QByteArray());
}

TEST_F(Execution, AStopFlagLeftFromAPreviewRenamesNothingAndPromotesAll)
{
    Files({u"a.txt"_qs, u"b.txt"_qs});
    state.ConfirmAfterRename = 1; // no message: an unasked-for one would fail the test
    state.AutoRefreshMainView = 1;
    Propose({u"x.txt"_qs, u"y.txt"_qs});
    state.StopFlag.Set();
    EXPECT_TRUE(workspace.cmdExecute_Click());
    EXPECT_FALSE(state.StopFlag.IsSet());
    EXPECT_EQ(folder.Names(), QStringList({u"a.txt"_qs, u"b.txt"_qs}));
    EXPECT_EQ(Column(GridPre::Original), QStringList({u"x.txt"_qs, u"y.txt"_qs}));
    EXPECT_EQ(program.Content(u"templog.log"_qs), QByteArray());
    EXPECT_EQ(MainListNames(), QStringList()) << "none of the new names exists";
    EXPECT_TRUE(workspace.PreviewDone());
}

TEST_F(Execution, TheLogIsSavedUnderTheMomentOfTheStart)
{
    const std::pair<QDateTime, QString> rows[] = {
        {clock.now, u"Rename_Log11_14_202611_22_59_PM.txt"_qs},
        {QDateTime(QDate(2027, 1, 5), QTime(0, 3, 4)), u"Rename_Log01_05_202712_03_04_AM.txt"_qs},
    };
    Files({u"a"_qs});
    state.SaveLogFile = 1;
    for (const auto& [moment, name] : rows) {
        clock.now = moment;
        for (const QString& target : {u"b"_qs, u"a"_qs}) { // twice within a second: the second one stays
            Propose({target});
            workspace.cmdExecute_Click();
            EXPECT_TRUE(
                program.Content(u"templog.log"_qs).contains(target.toUtf8() + " : Rename Successful"));
            EXPECT_EQ(program.Content(name), program.Content(u"templog.log"_qs));
        }
    }
    EXPECT_EQ(program.Names(), QStringList({rows[1].second, rows[0].second, u"templog.log"_qs}));
}

TEST_F(Execution, RenamesRunWhereNoLogCanBeWritten)
{
    Files({u"a"_qs});
    program.MakeFolder(u"templog.log"_qs);
    state.SaveLogFile = 1;
    state.ConfirmAfterRename = 1;
    Propose({u"b"_qs});
    host.Announce(u"Quillmark"_qs, u"Files Renamed"_qs);
    EXPECT_TRUE(workspace.cmdExecute_Click());
    EXPECT_EQ(folder.Names(), QStringList({u"b"_qs}));
    EXPECT_EQ(program.Names(), QStringList({u"templog.log"_qs}));
}

TEST_F(Execution, TheMainListThenHoldsTheRenamedFiles)
{
    Files({u"a.txt"_qs, u"gone.txt"_qs, u"sub/"_qs, u"b.txt"_qs, u"left.txt"_qs});
    mainList.SetChecked(5, false);
    workspace.Refreshrnm();
    state.AutoRefreshMainView = 1;
    Propose({u"a2.txt"_qs, u"gone2.txt"_qs, u"sub2"_qs, u"b2.txt"_qs});
    Remove(u"gone.txt"_qs);
    workspace.cmdExecute_Click();
    EXPECT_EQ(MainListNames(), QStringList({u"a2.txt checked"_qs, u"b2.txt checked"_qs}));
    EXPECT_EQ(state.CheckedCount, 2);
    EXPECT_TRUE(host.TakeEvents().endsWith(
        u"; status Refreshing Main File View...; max 4; value 0; value 0; status Ready"_qs));
}

TEST_F(Execution, AttributesAreNormalisedByPosition)
{
    Files({u"a"_qs, u"b"_qs, u"c"_qs});
    mainList.SetChecked(1, false);
    workspace.Refreshrnm(); // rows b and c stand beside items a, unchecked, and b, checked
    for (const QString& name : {u"a"_qs, u"b"_qs, u"c"_qs}) {
        MakeReadOnly(name);
    }
    state.AutoNormalizeAttributes = 1;
    Propose({u"b2"_qs, u"c2"_qs});
    workspace.cmdExecute_Click();
    EXPECT_FALSE(IsWritable(u"a"_qs));
    EXPECT_FALSE(IsWritable(u"b2"_qs));
    EXPECT_TRUE(IsWritable(u"c2"_qs));
    EXPECT_TRUE(host.TakeEvents().startsWith(u"max 3; value 0; status Changing Attributes...; value 1; "_qs));
}

TEST_F(Execution, TheLogWindowCutsALineIntoFourFields)
{
    const struct
    {
        QString line, fields;
        bool isRed;
    } rows[] = {
        {u"/p/ : a : b : Rename Successful"_qs, u"/p/|a|b|Rename Successful"_qs, false},
        {u"/p/ : a :  : no : way"_qs, u"/p/|a||no : way"_qs, true},
        {u"/x : y/ : a : b : Rename Successful"_qs, u"/x|y/|a|b : Rename Successful"_qs, true},
        {u"/p/:a : b"_qs, u"/p/:a|b||"_qs, true},
    };
    QByteArray content;
    for (const auto& row : rows) {
        content += row.line.toUtf8() + "\r\n";
    }
    folder.Write(u"log"_qs, content);
    RunLog log;
    log.Load(folder.Path() + u"log"_qs);
    ASSERT_EQ(log.rowCount(), 4);
    for (int i = 0; i < 4; ++i) {
        QStringList fields;
        for (int column = 0; column < RunLog::ColumnCount; ++column) {
            fields.append(log.data(log.index(i, column)).toString());
        }
        EXPECT_EQ(fields.join(u'|'), rows[i].fields);
        const QVariant colour = log.data(log.index(i, RunLog::Result), RunLog::ColourRole);
        EXPECT_EQ(colour.isValid(), rows[i].isRed) << rows[i].line.toStdString();
        EXPECT_FALSE(log.data(log.index(i, RunLog::Path), RunLog::ColourRole).isValid());
    }
    EXPECT_EQ(log.FailureCount(), 3);
    log.Load(folder.Path() + u"none"_qs);
    EXPECT_EQ(log.rowCount(), 0);
}

} // namespace
