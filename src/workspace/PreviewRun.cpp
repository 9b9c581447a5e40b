// SPDX-License-Identifier: MIT
//
// The preview: from rows and options to new names. Row by row, not action by action: row 1 goes through all
// actions, then row 2, so a counter moves once a row for each action that uses it.
#include "actions/ActionHandler.h"
#include "workspace/RenameWorkspace.h"
#include "workspace/RunMetadata.h"

#include <algorithm>

namespace workspace {

namespace {

using Handlers = std::vector<std::unique_ptr<actions::ActionHandler>>;

bool HasSelection(const actions::ActionList& list)
{
    return std::any_of(list.entries.begin(), list.entries.end(),
                       [](const actions::ActionList::Entry& entry) { return entry.Selected; });
}

bool IsSelected(model::ActionKind kind, const actions::ActionList& list)
{
    return std::any_of(list.entries.begin(), list.entries.end(),
                       [&](const actions::ActionList::Entry& entry) {
                           return entry.Selected && entry.text == model::NameOf(kind);
                       });
}

// Taken before the first row: Preview still holds the run before this one, or what was typed into it.
actions::LengthMeasures MeasuresOf(const GridPre& grid)
{
    return {
        .longestOriginal = grid.LongestLength(GridPre::Original),
        .shortestOriginal = grid.ShortestLength(GridPre::Original),
        .longestModified = grid.LongestLength(GridPre::Preview),
        .shortestModified = grid.ShortestLength(GridPre::Preview),
    };
}

// The selected actions in list order. Texts that name no action are passed over.
Handlers CompileSelected(const actions::RenameOptions& options, const actions::RunState& run)
{
    Handlers handlers;
    for (const actions::ActionList::Entry& entry : options.List3.entries) {
        const auto kind = entry.Selected ? model::ActionKindOf(entry.text) : std::nullopt;
        if (kind) {
            handlers.push_back(actions::CompileAction(*kind, options, run));
        }
    }
    return handlers;
}

} // namespace

void RenameWorkspace::cmdPreview_Click()
{
    host_.ShowStatus(QStringLiteral("Generating Preview..."));
    RunPreview();
    if (state_.AutoValidate == 1) {
        host_.ShowStatus(QStringLiteral("Validating New Names..."));
        if (HasSelection(options.List3)) {
            cmdValidate_Click();
        }
    }
    host_.ShowStatus(QStringLiteral("Ready"));
    previewDone_ = true;
}

void RenameWorkspace::RunPreview()
{
    // Counters start anew even for a run that ends with the warning.
    counters_.Reset(options);
    if (!HasSelection(options.List3)) {
        host_.ShowMessage(QStringLiteral("Please Select Actions"), QStringLiteral("Renamer"));
        return;
    }
    const actions::LengthMeasures lengths =
        IsSelected(model::ActionKind::Length, options.List3) ? MeasuresOf(grid) : actions::LengthMeasures{};
    const Handlers handlers = CompileSelected(options, {counters_, clock_, random_, host_, lengths});

    const int rowCount = grid.RowCount();
    host_.SetProgressValue(0);
    host_.SetProgressMaximum(rowCount);
    host_.ShowStatus(QStringLiteral("Generating Preview..."));
    RunMetadata metadata(programFolder_.Path(), lstExif_);
    model::NameContext context; // exifDate lives on from row to row
    // What runs while the loop yields may shorten the grid.
    for (int row = 1; row <= rowCount && row <= grid.RowCount(); ++row) {
        if (state_.StopFlag.IsSet()) {
            break;
        }
        const model::RenameRow& data = grid.Row(row);
        context.name = data.original;
        context.modified = data.modified;
        context.size = static_cast<float>(data.size);
        context.folder = data.folder;
        context.type = data.type;
        metadata.Load(data, context);
        for (const auto& handler : handlers) {
            context.name = handler->NewName(context);
            host_.Yield();
        }
        if (handlers.empty()) {
            host_.Yield();
        }
        if (row <= grid.RowCount()) {
            grid.SetPreview(row, context.name);
        }
        host_.SetProgressValue(row);
    }
    grid.AnnounceChanges();
    host_.ShowStatus(QStringLiteral("Ready"));
    host_.SetProgressValue(0);
}

} // namespace workspace
