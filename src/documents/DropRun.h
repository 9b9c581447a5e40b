// SPDX-License-Identifier: MIT
//
// DropRun: a rename drop that asks before each file, without its window. It goes through the rows of the
// rename grid one by one; four boxes show a row, and each step tells what is to be said and whether the
// window closes.
//
// Two things here are on purpose. Every step first fills the boxes from the row that it handles, so a name
// that a person typed into txtModName is replaced by the Preview before it could take effect. And no step
// shows the row after it: the first Skip shows row 1 again, and from then on the boxes are one row behind.
#pragma once

#include "platform/FileSystem.h"
#include "workspace/GridPre.h"

#include <QString>

namespace documents {

class DropRun
{
public:
    // What the window shows, and what a move gets as its arguments.
    struct Boxes
    {
        QString txtOrig;    // Path & Original
        QString txtCalc;    // Path & Preview
        QString txtModPath; // Path
        QString txtModName; // Preview, until a person changes it
    };

    // What follows from a step.
    struct [[nodiscard]] Step
    {
        QString message; // to be shown; empty: nothing
        bool closes = false;
    };

    // Shows row 1; without rows the boxes stay empty. `grid` outlives the run.
    explicit DropRun(const workspace::GridPre& grid);

    // The row that the next step handles, from 1; RowCount() + 1 past the last row.
    int CurrentRow() const { return currentRow_; }

    // Shows the current row and leaves it as it is on disk. Past the last row it does nothing.
    Step Skip();

    // Renames the current row on disk, never over an existing target. A failure is told, and the row stays
    // the current one, to be tried again or skipped. The last row ends the run with "All Files Renamed". Past
    // the last row it does nothing, and doesn't end the run either.
    Step Rename();

    // Renames all rows from the current one on. Those that fail are passed over. Ends with "Files Renamed".
    Step RenameAll();

    // Ends the run.
    Step SkipAll();

    Boxes boxes;

private:
    bool IsPastLastRow() const { return currentRow_ > grid_.RowCount(); }
    void ShowRow(int row);
    platform::Status RenameShown(platform::FileSystem& files) const;

    const workspace::GridPre& grid_;
    int currentRow_ = 1;
};

} // namespace documents
