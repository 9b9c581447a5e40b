// SPDX-License-Identifier: MIT
//
// The file in which a list of replacements is kept (*.srl): plain text, one value a line. A header, the state
// of the box that marks all rows (0 or 1), and then three lines a row: match flag, from, to. The lists of
// names and of extensions have the same form, so each window can open the other's files.
#pragma once

#include "actions/ReplaceList.h"
#include "platform/Result.h"

namespace workspace {

struct ReplaceListFile
{
    bool matchCaseAll = false;
    actions::ReplaceRows rows;
};

// Writes the file anew, whole or not at all (platform::WriteDocument). Rows without a from string are left
// out, so a gap in the grid closes up. REQUIRES: no text holds a line break.
platform::Status SaveReplaceList(const ReplaceListFile& list, const QString& path);

// Reads a file. If it ends within a row, that row has the values that are there. At most as many rows as
// the grid has are taken. Fails with "Invalid File", `list` staying as it was, if the first line isn't
// exactly the header, if the file can't be read, or if it has more than 16 MiB.
platform::Status LoadReplaceList(ReplaceListFile& list, const QString& path);

} // namespace workspace
