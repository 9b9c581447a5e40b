// SPDX-License-Identifier: MIT
//
// Validation: colours for the Preview cells. Duplicates are found as a scan would find them that, for each
// row not yet marked, looks for the next row with the same target, marks both and starts over: rows of one
// target are marked in pairs, so of an odd group the last stays unmarked. Here one pass with a hash finds all
// pairs.
#include "workspace/RenameWorkspace.h"

#include <QHash>

#include <algorithm>

namespace workspace {

namespace {

constexpr int NoPartner = 0;

// For each row, the row behind it that it forms a pair with, or NoPartner; both from 1. The target is the
// whole path, compared exactly.
std::vector<int> PairsOf(const GridPre& grid)
{
    const int rowCount = grid.RowCount();
    std::vector<int> partner(static_cast<std::size_t>(rowCount) + 1, NoPartner);
    QHash<QString, int> waiting; // target -> the row that has no partner yet
    waiting.reserve(rowCount);
    for (int row = 1; row <= rowCount; ++row) {
        const model::RenameRow& data = grid.Row(row);
        int& earlier = waiting[data.path + data.preview];
        if (earlier == NoPartner) {
            earlier = row;
        } else {
            partner[static_cast<std::size_t>(earlier)] = row;
            earlier = NoPartner;
        }
    }
    return partner;
}

} // namespace

void RenameWorkspace::cmdValidate_Click()
{
    using model::ValidationState;
    const int rowCount = grid.RowCount();
    host_.SetProgressValue(0);
    host_.SetProgressMaximum(rowCount);
    host_.ShowStatus(QStringLiteral("Validating New Names"));
    for (int row = 1; row <= rowCount; ++row) {
        const bool isSame = grid.Row(row).preview == grid.Row(row).original;
        grid.SetState(row, isSame ? ValidationState::NotChanged : ValidationState::Changed);
    }

    const std::vector<int> partner = PairsOf(grid);
    int progress = 0;
    for (int row = 1; row <= rowCount; ++row) {
        // The last row is compared with none, so a stop there comes too late to be seen.
        if (row < rowCount && state_.StopFlag.IsSet()) {
            state_.StopFlag.Clear();
            grid.AnnounceChanges();
            return;
        }
        const int other = partner[static_cast<std::size_t>(row)];
        // What runs while the loop yields may shorten the grid.
        if (other != NoPartner && other <= grid.RowCount()) {
            grid.SetState(row, ValidationState::Duplicate);
            grid.SetState(other, ValidationState::Duplicate);
            // The scan starts over at each pair: the rows before this one count again.
            progress = std::min(rowCount, progress + row - 1);
        }
        progress = std::min(rowCount, progress + 1);
        host_.SetProgressValue(progress);
        host_.Yield();
    }
    grid.AnnounceChanges();
    host_.SetProgressValue(0);
    host_.ShowStatus(QStringLiteral("Ready"));
}

} // namespace workspace
