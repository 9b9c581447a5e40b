// SPDX-License-Identifier: MIT
//
// The attribute changer: gives all checked files of a list the same attributes. The window sets AtbsState by
// its boxes; everything else is here.
#pragma once

#include "fileview/FileList.h"
#include "model/RunHost.h"
#include "platform/Result.h"

#include <optional>

namespace attributes {

// The boxes Atbs0 to Atbs5. One is true if its box is checked and enabled.
struct AtbsState
{
    bool Normal = false;
    bool ReadOnly = false;
    bool Hidden = false;
    bool System = false;
    bool Directory = false;
    bool Archive = false;

    bool operator==(const AtbsState&) const = default;
};

// Unchecks all six.
void ClrCks(AtbsState& boxes);

// The boxes that show the attributes of one file; nothing if it can't be reached. `folder` may lack its
// trailing separator. System has no step of its own: such a file shows as hidden and read-only.
std::optional<AtbsState> Attrib(const QString& folder, const QString& name);

// Gives the file or folder at `path` what the boxes ask for; if Normal is one of them, no attributes at all.
// Fails as platform::SetAttr does.
platform::Status DoAtr(const QString& path, const AtbsState& boxes);

// Runs DoAtr on the checked rows, from the first to the last. The first file that can't be changed ends the
// run: its failure is shown, and rows changed so far stay changed. The progress rises by 1 for each row,
// checked or not, up to `progressMaximum`, which may be the number of rows of another list.
void ChangeAttributes(const fileview::FileList& rows, int progressMaximum, const AtbsState& boxes,
                      model::RunHost& host);

} // namespace attributes
