// SPDX-License-Identifier: MIT
#include "support/WorkspaceFixture.h"

namespace {

using namespace workspace;
using actions::CounterBlock;

class PreviewRun : public testing_support::WorkspaceFixture
{
protected:
    QStringList PreviewOf(const QString& value)
    {
        options.replaceAll.cmbAll.combo = value;
        Select({u"Replace All"_qs});
        return Preview();
    }
};

TEST_F(PreviewRun, TakesEachRowThroughTheActionsInTheirOrder)
{
    Files({u"abcd.txt"_qs, u"efgh.txt"_qs});
    options.replaceFirst.Text1 = options.replaceLast.Text14 = u"1"_qs;
    options.replaceFirst.cmbFirst.combo = options.replaceLast.cmbLast.combo = u"$Counter$"_qs;
    options.replaceAll.cmbAll.combo = u"xyz"_qs;
    const std::pair<QString, QString> rows[] = {
        {u"Replace First|Replace Last"_qs, u"001bc001.txt|002fg002.txt"_qs},
        {u"Replace First|Replace Last"_qs, u"001bc001.txt|002fg002.txt"_qs}, // counters start anew
        {u"Replace All|Replace First"_qs, u"001yz.txt|002yz.txt"_qs},
        {u"Replace First|Replace All"_qs, u"xyz.txt|xyz.txt"_qs},
        {u"replace all||Replace First"_qs, u"001bcd.txt|002fgh.txt"_qs}, // texts that name no action
        {u"replace all"_qs, u"abcd.txt|efgh.txt"_qs},
    };
    for (const auto& [selected, names] : rows) {
        Select(selected.split(u'|'));
        EXPECT_EQ(Preview().join(u'|'), names) << selected.toStdString();
    }
    EXPECT_EQ(Column(GridPre::Original), folder.Names());
}

TEST_F(PreviewRun, GivesTheActionsWhatTheRowHolds)
{
    Files({u"a.dir/"_qs, u"b.txt"_qs, u"c.dir/"_qs});
    folder.SetModified(u"b.txt"_qs, QDateTime(QDate(2009, 5, 4), QTime(7, 8, 9)).toSecsSinceEpoch());
    workspace.Refreshrnm();
    const QString name = folder.Path().section(u'/', -2, -2);
    const std::pair<QString, QStringList> rows[] = {
        // The first folder has no date, the second that of the file before it.
        {u"$mod_yyyymmdd$"_qs, {u"a.dir"_qs, u"20090504.txt"_qs, u"20090504"_qs}},
        {u"$filesizeB$"_qs, {u"0B"_qs, u"5B.txt"_qs, u"0B"_qs}},
        {u"$Upper_Case$"_qs, {u"A.DIR"_qs, u"B.txt"_qs, u"C.DIR"_qs}},
        {u"$foldername$"_qs, {name, name + u".txt"_qs, name}},
    };
    for (const auto& [value, names] : rows) {
        EXPECT_EQ(PreviewOf(value), names) << value.toStdString();
    }
}

TEST_F(PreviewRun, WithoutASelectedActionOnlyWarnsAndOpensExecute)
{
    Files({u"a"_qs});
    workspace.grid.SetPreview(1, u"by hand"_qs);
    Select({});
    state.AutoValidate = 1;
    EXPECT_FALSE(workspace.PreviewDone());
    host.Announce(u"Renamer"_qs, u"Please Select Actions"_qs);
    EXPECT_EQ(Preview(), QStringList({u"by hand"_qs}));
    EXPECT_TRUE(host.TakeEvents().endsWith(u"Actions; status Validating New Names...; status Ready"_qs));
    EXPECT_EQ(workspace.grid.Row(1).state, model::ValidationState::NotValidated);
    EXPECT_TRUE(workspace.PreviewDone());
}

TEST_F(PreviewRun, ShowsItsProgressValidatesIfAskedAndIsClearedButForItsColours)
{
    Files({u"a"_qs, u"b"_qs});
    state.AutoValidate = 1;
    EXPECT_EQ(PreviewOf(u"c"_qs), QStringList({u"c"_qs, u"c"_qs}));
    EXPECT_TRUE(host.TakeEvents().startsWith(
        u"status Generating Preview...; value 0; max 2; status Generating Preview...; value 1; value 2; "
        u"status Ready; value 0; status Validating New Names...; "_qs));
    workspace.cmdClear_Click();
    EXPECT_EQ(Column(GridPre::Preview), QStringList({u""_qs, u""_qs}));
    EXPECT_EQ(workspace.grid.Row(2).state, model::ValidationState::Duplicate);
    EXPECT_FALSE(workspace.PreviewDone());
    workspace.Command13_Click();
    EXPECT_TRUE(state.StopFlag.IsSet());
    EXPECT_TRUE(host.TakeEvents().endsWith(u"value 0; status Ready"_qs));
}

TEST_F(PreviewRun, BearsWhatAPersonDoesInItsMidst)
{
    Files({u"a"_qs, u"b"_qs, u"c"_qs});
    host.AtYield(2, [this] { options = {}; });
    EXPECT_EQ(PreviewOf(u"$Counter$"_qs), QStringList({u"001"_qs, u"002"_qs, u"003"_qs}))
        << "options as before";
    options.replaceAll.cmbAll.counter.text[CounterBlock::StartFrom] = u"no number"_qs;
    EXPECT_EQ(PreviewOf(u"$Counter$"_qs), QStringList({u"004"_qs, u"005"_qs, u"006"_qs})) << "it goes on";

    host.StopAtYield(2);
    EXPECT_EQ(PreviewOf(u"new"_qs), QStringList({u"new"_qs, u"new"_qs, u"006"_qs}));
    EXPECT_TRUE(state.StopFlag.IsSet() && workspace.PreviewDone());
    workspace.Activated();
    host.AtYield(2, [this] {
        mainList.SetChecked(1, false);
        mainList.SetChecked(3, false);
        workspace.Refreshrnm();
    });
    EXPECT_EQ(PreviewOf(u"newer"_qs).size(), 1) << "rows that a refresh took away";
    EXPECT_EQ(PreviewOf(u"newest"_qs), QStringList({u"newest"_qs}));
}

} // namespace
