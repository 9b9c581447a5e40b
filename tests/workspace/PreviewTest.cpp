// SPDX-License-Identifier: MIT
#include "support/WorkspaceFixture.h"

namespace {

using namespace workspace;
using actions::CounterBlock;

class PreviewRun : public testing_support::WorkspaceFixture
{
protected:
    static QStringList Ten(const QString& pattern, int from = 1, int to = 10)
    {
        QStringList names;
        for (int i = from; i <= to; ++i) {
            names.append(pattern.arg(i, 2, 10, QChar(u'0')));
        }
        return names;
    }
};

TEST_F(PreviewRun, TakesEachRowThroughTheActionsInTheirOrder)
{
    Files({u"abcd.txt"_qs, u"efgh.txt"_qs});
    options.replaceFirst.Text1 = options.replaceLast.Text14 = u"1"_qs;
    options.replaceFirst.cmbFirst.combo = options.replaceLast.cmbLast.combo = u"$Counter$"_qs;
    Select({u"Replace First"_qs, u"Replace Last"_qs});
    for (int run = 1; run <= 2; ++run) {
        EXPECT_EQ(Preview(), QStringList({u"001bc001.txt"_qs, u"002fg002.txt"_qs})) << "run " << run;
    }
    options.replaceAll.cmbAll.combo = u"xyz"_qs;
    Select({u"Replace All"_qs, u"Replace First"_qs});
    EXPECT_EQ(Preview(), QStringList({u"001yz.txt"_qs, u"002yz.txt"_qs}));
    Select({u"Replace First"_qs, u"Replace All"_qs});
    EXPECT_EQ(Preview(), QStringList({u"xyz.txt"_qs, u"xyz.txt"_qs}));
    Select({u"replace all"_qs, u""_qs, u"Replace First"_qs});
    EXPECT_EQ(Preview().first(), u"001bcd.txt"_qs) << "texts that name no action are passed over";
    Select({u"replace all"_qs});
    EXPECT_EQ(Preview().first(), u"abcd.txt"_qs);
    EXPECT_EQ(Column(GridPre::Original), QStringList({u"abcd.txt"_qs, u"efgh.txt"_qs}));
    EXPECT_EQ(folder.Names(), QStringList({u"abcd.txt"_qs, u"efgh.txt"_qs}));
}

TEST_F(PreviewRun, CapturesTheOptionsOnce)
{
    Files(Ten(u"%1.txt"_qs));
    options.replaceAll.cmbAll.combo = u"$Counter$"_qs;
    Select({u"Replace All"_qs});
    host.AtYield(3, [this] {
        options.replaceAll.cmbAll = {};
        options.List3 = {};
    });
    EXPECT_EQ(Preview(), Ten(u"0%1.txt"_qs));
}

TEST_F(PreviewRun, AStartThatDoesNotConvertGoesOnFromTheLastRun)
{
    Files({u"a"_qs, u"b"_qs});
    options.replaceAll.cmbAll.combo = u"$Counter$"_qs;
    Select({u"Replace All"_qs});
    options.replaceAll.cmbAll.counter.text[CounterBlock::StartFrom] = u"5"_qs;
    EXPECT_EQ(Preview(), QStringList({u"005"_qs, u"006"_qs}));
    options.replaceAll.cmbAll.counter.text[CounterBlock::StartFrom] = u"five"_qs;
    EXPECT_EQ(Preview(), QStringList({u"007"_qs, u"008"_qs}));
    options.replaceAll.cmbAll.counter.text[CounterBlock::WithStep] = u""_qs;
    EXPECT_EQ(Preview(), QStringList({u"a"_qs, u"b"_qs})) << "no step, no new name";
}

TEST_F(PreviewRun, GivesTheActionsWhatTheRowHolds)
{
    folder.Write(u"b.txt"_qs);
    Files({u"a.dir/"_qs, u"b.txt"_qs, u"c.dir/"_qs});
    folder.SetModified(u"b.txt"_qs, QDateTime(QDate(2009, 5, 4), QTime(7, 8, 9)).toSecsSinceEpoch());
    workspace.Refreshrnm();
    Select({u"Replace All"_qs});
    const std::pair<QString, QStringList> rows[] = {
        // The first folder has no date, the second that of the file before it.
        {u"$mod_yyyymmdd$"_qs, {u"a.dir"_qs, u"20090504.txt"_qs, u"20090504"_qs}},
        {u"$filesizeB$"_qs, {u"0B"_qs, u"5B.txt"_qs, u"0B"_qs}},
        {u"$Upper_Case$"_qs, {u"A.DIR"_qs, u"B.txt"_qs, u"C.DIR"_qs}},
        {u"$foldername$"_qs, QStringList(3, folder.Path().section(u'/', -2, -2))},
    };
    for (auto [value, names] : rows) {
        options.replaceAll.cmbAll.combo = value;
        if (value == u"$foldername$"_qs) {
            names[1] += u".txt"_qs;
        }
        EXPECT_EQ(Preview(), names) << value.toStdString();
    }
}

TEST_F(PreviewRun, WithoutASelectedActionOnlyWarns)
{
    Files({u"a"_qs});
    EXPECT_FALSE(workspace.PreviewDone());
    workspace.grid.SetPreview(1, u"by hand"_qs);
    Select({});
    state.AutoValidate = 1;
    host.Announce(u"Renamer"_qs, u"Please Select Actions"_qs);
    EXPECT_EQ(Preview(), QStringList({u"by hand"_qs}));
    EXPECT_EQ(host.TakeEvents(), u"status Generating Preview...; message Renamer: Please Select Actions; "
                                 u"status Validating New Names...; status Ready"_qs);
    EXPECT_EQ(workspace.grid.Row(1).state, model::ValidationState::NotValidated);
    EXPECT_TRUE(workspace.PreviewDone()) << "Execute is no longer refused";
}

TEST_F(PreviewRun, ShowsItsProgressAndValidatesIfAsked)
{
    Files({u"a"_qs, u"b"_qs});
    options.replaceAll.cmbAll.combo = u"b"_qs;
    Select({u"Replace All"_qs});
    state.AutoValidate = 1;
    Preview();
    EXPECT_EQ(
        host.TakeEvents(),
        u"status Generating Preview...; value 0; max 2; status Generating Preview...; value 1; value 2; "
        u"status Ready; value 0; status Validating New Names...; value 0; max 2; status Validating New "
        u"Names; "
        u"value 1; value 2; value 0; status Ready; status Ready"_qs);
    EXPECT_EQ(workspace.grid.Row(2).state, model::ValidationState::Duplicate);
}

TEST_F(PreviewRun, AStopLeavesTheRowsBehindIt)
{
    Files(Ten(u"%1.txt"_qs));
    options.replaceAll.cmbAll.combo = u"$Counter$"_qs;
    Select({u"Replace All"_qs});
    Preview();
    options.replaceAll.cmbAll.counter.text[CounterBlock::Prefix] = u"new"_qs;
    host.StopAtYield(4);
    EXPECT_EQ(Preview(), Ten(u"new0%1.txt"_qs, 1, 4) + Ten(u"0%1.txt"_qs, 5));
    EXPECT_TRUE(state.StopFlag.IsSet());
    EXPECT_TRUE(workspace.PreviewDone());
    EXPECT_TRUE(host.TakeEvents().endsWith(u"status Ready; value 0; status Ready"_qs));
    workspace.Activated();
    EXPECT_EQ(Preview(), Ten(u"new0%1.txt"_qs));
}

TEST_F(PreviewRun, ARefreshInTheMidstOfARunDoesNoHarm)
{
    Files(Ten(u"%1.txt"_qs));
    options.replaceAll.cmbAll.combo = u"$Counter$"_qs;
    Select({u"Replace All"_qs});
    host.AtYield(3, [this] {
        for (int index = 3; index <= 10; ++index) {
            mainList.SetChecked(index, false);
        }
        workspace.Refreshrnm();
    });
    EXPECT_EQ(Preview().size(), 2);
    EXPECT_EQ(Column(GridPre::Original), Ten(u"%1.txt"_qs, 1, 2));
}

TEST_F(PreviewRun, ClearEmptiesItAndKeepsTheColours)
{
    Files({u"a"_qs});
    Select({u"Replace All"_qs});
    options.replaceAll.cmbAll.combo = u"b"_qs;
    state.AutoValidate = 1;
    EXPECT_EQ(Preview(), QStringList({u"b"_qs}));
    workspace.cmdClear_Click();
    EXPECT_EQ(Column(GridPre::Preview), QStringList({u""_qs}));
    EXPECT_EQ(workspace.grid.Row(1).state, model::ValidationState::Changed);
    EXPECT_FALSE(workspace.PreviewDone());
    host.TakeEvents();
    workspace.Command13_Click();
    EXPECT_TRUE(state.StopFlag.IsSet());
    EXPECT_EQ(host.TakeEvents(), u"value 0; status Ready"_qs);
}

} // namespace
