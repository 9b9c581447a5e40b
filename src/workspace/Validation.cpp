// SPDX-License-Identifier: MIT
//
// Validation: colours for the Preview cells. Duplicates are found as a scan would find them that, for each
// row not yet marked, looks for the next row with the same target, marks both and starts over: rows of one
// target are marked in pairs, so of an odd group the last stays unmarked. Here one pass with a hash finds all
// pairs.
#include "workspace/RenameWorkspace.h"

#include <algorithm>

namespace workspace {

namespace {

constexpr int NoPartner = 0;

// A row's place among all rows of its target.
struct TargetKey
{
    quint64 hash; // of Path & Preview
    int row;      // from 1
};

// Continues the FNV-1a hash of a text by another text: the hash of Path & Preview needs no joined copy.
quint64 HashOn(quint64 hash, const QString& text)
{
    for (const QChar unit : text) {
        hash = (hash ^ unit.unicode()) * 0x100000001B3ULL;
    }
    return hash;
}

std::vector<TargetKey> KeysOf(const GridPre& grid)
{
    constexpr quint64 emptyHash = 0xCBF29CE484222325ULL;
    std::vector<TargetKey> keys;
    keys.reserve(static_cast<std::size_t>(grid.RowCount()));
    QString path;
    quint64 pathHash = emptyHash;
    for (int row = 1; row <= grid.RowCount(); ++row) {
        const model::RenameRow& data = grid.Row(row);
        if (data.path != path) {
            path = data.path;
            pathHash = HashOn(emptyHash, path);
        }
        keys.push_back({HashOn(pathHash, data.preview), row});
    }
    return keys;
}

// Compares whole targets exactly: below, at or above 0.
int CompareTargets(const model::RenameRow& a, const model::RenameRow& b)
{
    return a.path == b.path ? a.preview.compare(b.preview) : (a.path + a.preview).compare(b.path + b.preview);
}

// For each row, the row behind it that it forms a pair with, or NoPartner; both from 1. Rows of one target
// come to stand together, in grid order, by sorting their hashes, which stays near linear in time where a
// table of texts outgrows the cache.
std::vector<int> PairsOf(const GridPre& grid)
{
    std::vector<TargetKey> keys = KeysOf(grid);
    std::sort(keys.begin(), keys.end(), [&grid](const TargetKey& a, const TargetKey& b) {
        if (a.hash != b.hash) {
            return a.hash < b.hash;
        }
        const int order = CompareTargets(grid.Row(a.row), grid.Row(b.row));
        return order != 0 ? order < 0 : a.row < b.row;
    });
    std::vector<int> partner(keys.size() + 1, NoPartner);
    for (std::size_t i = 0; i + 1 < keys.size(); ++i) {
        const TargetKey& first = keys[i];
        const TargetKey& second = keys[i + 1];
        if (first.hash == second.hash && CompareTargets(grid.Row(first.row), grid.Row(second.row)) == 0) {
            partner[static_cast<std::size_t>(first.row)] = second.row;
            ++i;
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
