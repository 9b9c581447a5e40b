// SPDX-License-Identifier: MIT
#include "support/WorkspaceFixture.h"

#include <random>

namespace {

using enum model::ValidationState;
using States = std::vector<model::ValidationState>;

class Validation : public testing_support::WorkspaceFixture
{
protected:
    States Validated(const std::vector<model::RenameRow>& rows)
    {
        workspace.grid.SetRows(rows);
        workspace.cmdValidate_Click();
        States states;
        for (int row = 1; row <= workspace.grid.RowCount(); ++row) {
            states.push_back(workspace.grid.Row(row).state);
        }
        return states;
    }

    std::mt19937 dice{20261114};
    QString OneOf(const QString& texts)
    {
        return texts.split(u' ')[qsizetype(dice()) % (texts.count(u' ') + 1)];
    }
};

// The scan as people know it: each row not yet marked looks for the next one with its target, and marks both.
TEST_F(Validation, ColoursAreThoseOfTheSlowScan)
{
    for (int round = 0; round < 1000; ++round) {
        std::vector<model::RenameRow> rows(dice() % 9);
        States expected;
        for (model::RenameRow& row : rows) {
            row.path = OneOf(u"/p/ /p/ /p/q/"_qs);
            row.original = OneOf(u"a b"_qs);
            row.preview = OneOf(u"a a A b  q/a"_qs); // one of them is empty
            expected.push_back(row.preview == row.original ? NotChanged : Changed);
        }
        for (std::size_t i = 0; i < rows.size(); ++i) {
            for (std::size_t j = i + 1; j < rows.size() && expected[i] != Duplicate; ++j) {
                if (rows[i].path + rows[i].preview == rows[j].path + rows[j].preview) {
                    expected[i] = expected[j] = Duplicate;
                }
            }
        }
        ASSERT_EQ(Validated(rows), expected) << "round " << round;
    }
}

TEST_F(Validation, AStopKeepsTheColoursSoFarAndItsStatus)
{
    std::vector<model::RenameRow> rows(4);
    rows[0].preview = rows[2].preview = u"x"_qs;
    rows[1].preview = rows[3].preview = u"y"_qs;
    const std::tuple<int, States, QString> cases[] = {
        {1, {Duplicate, Changed, Duplicate, Changed}, u"status Validating New Names; value 1"_qs},
        {2, {Duplicate, Duplicate, Duplicate, Duplicate}, u"value 1; value 3"_qs},
        {3, {Duplicate, Duplicate, Duplicate, Duplicate}, u"value 4; value 0; status Ready"_qs}, // too late
        {0, {Changed, Changed, Changed, Changed}, u"max 4; status Validating New Names"_qs},     // still set
    };
    for (const auto& [stopAt, states, lastEvents] : cases) {
        host.AtYield(stopAt, [this] { state.StopFlag.Set(); });
        EXPECT_EQ(Validated(rows), states) << stopAt;
        EXPECT_TRUE(host.TakeEvents().endsWith(lastEvents)) << stopAt;
        EXPECT_EQ(state.StopFlag.IsSet(), stopAt == 3);
    }
}

} // namespace
