// SPDX-License-Identifier: MIT
//
// The entries that the value combos offer. Picking one opens a picker or shows a block; only some of them are
// tokens.
#pragma once

#include <QStringList>

namespace actions {

// For the actions that work on a stretch of the name: sixteen entries.
const QStringList& ValueEntries();

// For Insert, Suffix, Prefix and Compose: the same without the three case entries.
const QStringList& ValueEntriesWithoutCase();

// For Extension: its single value and the cells of its list.
const QStringList& ExtensionEntries();

// For the cells of the list of Exif changes, which spells "$Alphacounter$" in its own way and has no MP3
// data.
const QStringList& ExifChangeEntries();

} // namespace actions
