// SPDX-License-Identifier: MIT
//
// The two rename documents: the rename configuration (.rfg) and the rename drop (.rnp). Both store what a
// person set in the rename workspace, no files and no names of files. A document is plain text, one value a
// line and no keys: a value is known by the number of its line alone (RecipeLines.h writes the order down). A
// .rfg has 242 lines, the first of them a header; a .rnp has the same lines without the header.
#pragma once

#include "actions/RenameOptions.h"
#include "platform/Result.h"

#include <QString>

namespace documents {

// First line of a .rfg.
inline const QString RenameConfigHeader = QStringLiteral("File Rename Settings");

// Writes a document, over an existing one, whole or not at all.
platform::Status SaveRenameConfig(const actions::RenameOptions& options, const QString& path);
platform::Status SaveRenameDrop(const actions::RenameOptions& options, const QString& path);

// Reads a .rfg into `options`. The action list is emptied first, whatever follows, even if the file can't be
// read. Fails with "Invalid File" if the first line isn't exactly the header; the action list then stays
// empty. Nothing else is checked: missing lines and values that don't convert leave their options as they
// were.
platform::Status LoadRenameConfig(actions::RenameOptions& options, const QString& path);

// Reads a .rnp into `options`, in the same way but with no header to check. A file that can't be read, or
// has more than 1 MiB, leaves the action list empty and all else as it was.
void LoadRnp(actions::RenameOptions& options, const QString& path);

} // namespace documents
