// SPDX-License-Identifier: MIT
#include "support/WorkspaceFixture.h"

#include <random>

namespace {

using namespace workspace;
using model::ValidationState;

using States = std::vector<ValidationState>;
constexpr int NoStop = -1;

// The scan as people know it: for each row not yet marked, look for the next one with its target, mark both,
// start over. StopFlag is raised when row `stopAfter` is done for the first time; 0: before the scan.
struct SlowScan
{
    States states;
    bool isFinished = true;
    bool flagIsSet = false;

    SlowScan(const GridPre& grid, int stopAfter)
    {
        const int count = grid.RowCount();
        const auto target = [&grid](int row) {
            return grid.Row(row).path + grid.Row(row).preview;
        };
        for (int row = 1; row <= count; ++row) {
            const bool isSame = grid.Row(row).preview == grid.Row(row).original;
            states.push_back(isSame ? ValidationState::NotChanged : ValidationState::Changed);
        }
        flagIsSet = stopAfter == 0;
        int done = 0;
        for (int i = 1; i <= count; ++i) {
            bool foundPair = false;
            for (int j = i + 1; j <= count && !foundPair; ++j) {
                if (flagIsSet) {
                    flagIsSet = false;
                    isFinished = false;
                    return;
                }
                foundPair = State(i) != ValidationState::Duplicate && target(i) == target(j);
                if (foundPair) {
                    State(i) = State(j) = ValidationState::Duplicate;
                }
            }
            if (foundPair) {
                i = 0;
            } else if (i > done) {
                done = i;
                flagIsSet = flagIsSet || i == stopAfter;
            }
        }
    }

    ValidationState& State(int row) { return states[static_cast<std::size_t>(row - 1)]; }
};

class Validation : public testing_support::WorkspaceFixture
{
protected:
    States StatesOfGrid() const
    {
        States states;
        for (int row = 1; row <= workspace.grid.RowCount(); ++row) {
            states.push_back(workspace.grid.Row(row).state);
        }
        return states;
    }

    void SetRows(const std::vector<std::array<const char16_t*, 3>>& rows) // path, original, preview
    {
        std::vector<model::RenameRow> made(rows.size());
        for (std::size_t i = 0; i < rows.size(); ++i) {
            made[i].path = QString::fromUtf16(rows[i][0]);
            made[i].original = QString::fromUtf16(rows[i][1]);
            made[i].preview = QString::fromUtf16(rows[i][2]);
        }
        workspace.grid.SetRows(std::move(made));
    }
};

TEST_F(Validation, ColoursAreThoseOfTheSlowScan)
{
    std::mt19937 dice(20261114);
    const auto oneOf = [&dice](const std::vector<const char16_t*>& texts) {
        return texts[dice() % texts.size()];
    };
    for (int round = 0; round < 3000; ++round) {
        std::vector<std::array<const char16_t*, 3>> rows(dice() % 9);
        for (auto& row : rows) {
            row = {oneOf({u"/p/", u"/p/", u"/q/"}), oneOf({u"a", u"b"}),
                   oneOf({u"a", u"a", u"A", u"b", u""})};
        }
        SetRows(rows);
        const int count = static_cast<int>(rows.size());
        const int stopAfter = static_cast<int>(dice() % static_cast<unsigned>(count + 2)) - 1;
        const SlowScan expected(workspace.grid, stopAfter);
        state.StopFlag.Clear();
        if (stopAfter == 0) {
            state.StopFlag.Set();
        } else if (stopAfter != NoStop) {
            host.StopAtYield(stopAfter);
        }
        host.TakeEvents();
        workspace.cmdValidate_Click();
        const bool isReady = host.TakeEvents().endsWith(u"status Ready"_qs);
        ASSERT_EQ(StatesOfGrid(), expected.states) << "round " << round << ", stop behind row " << stopAfter;
        ASSERT_EQ(state.StopFlag.IsSet(), expected.flagIsSet) << "round " << round << ", stop " << stopAfter;
        ASSERT_EQ(isReady, expected.isFinished) << "round " << round;
    }
}

TEST_F(Validation, ColoursTellWhatAUserAsks)
{
    constexpr auto same = ValidationState::NotChanged;
    constexpr auto changed = ValidationState::Changed;
    constexpr auto duplicate = ValidationState::Duplicate;
    const struct
    {
        const char* name;
        std::vector<std::array<const char16_t*, 3>> rows;
        States states;
    } cases[] = {
        {"an empty name is a change", {{u"/p/", u"a", u""}, {u"/p/", u"b", u"b"}}, {changed, same}},
        {"case makes names different",
         {{u"/p/", u"x", u"a.txt"}, {u"/p/", u"y", u"A.txt"}},
         {changed, changed}},
        {"two folders", {{u"/p/", u"x", u"a"}, {u"/q/", u"y", u"a"}}, {changed, changed}},
        {"the whole path counts", {{u"/p/", u"x", u"q/a"}, {u"/p/q/", u"y", u"a"}}, {duplicate, duplicate}},
        {"another row's old name is free", {{u"/p/", u"x", u"y"}, {u"/p/", u"y", u"z"}}, {changed, changed}},
        {"the third of three stays",
         {{u"/p/", u"x", u"a"}, {u"/p/", u"a", u"a"}, {u"/p/", u"z", u"a"}},
         {duplicate, duplicate, changed}},
    };
    for (const auto& row : cases) {
        SetRows(row.rows);
        workspace.cmdValidate_Click();
        EXPECT_EQ(StatesOfGrid(), row.states) << row.name;
    }
    EXPECT_EQ(GridPre::ColourOf(changed), 0xACF9B8U);
    EXPECT_EQ(GridPre::ColourOf(same), 0x00FFFFU);
    EXPECT_EQ(GridPre::ColourOf(duplicate), 0xFF0000U);
}

TEST_F(Validation, AStopLeavesItsStatus)
{
    SetRows({{u"/p/", u"a", u"x"}, {u"/p/", u"b", u"y"}, {u"/p/", u"c", u"y"}});
    host.StopAtYield(1);
    workspace.cmdValidate_Click();
    EXPECT_EQ(host.TakeEvents(), u"value 0; max 3; status Validating New Names; value 1"_qs);
    workspace.grid.Clear();
    workspace.cmdValidate_Click();
    EXPECT_EQ(host.TakeEvents(), u"value 0; max 0; status Validating New Names; value 0; status Ready"_qs);
}

} // namespace
