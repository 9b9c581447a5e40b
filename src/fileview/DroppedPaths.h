// SPDX-License-Identifier: MIT
//
// What happens to files and folders that are dropped on a file list.
#pragma once

#include "fileview/Scanner.h"

#include <QStringList>

namespace fileview {

struct DropCounts
{
    int Total = 0; // names
    int Files = 0; // also those that the filter kept out
    int Folders = 0;
};

// True if a dropped file passes: the extension that `FileSpec` names, without its "*", is empty or holds the
// file's extension, as a part, without regard to case. A file without extension always passes.
bool PassesFileSpec(const QString& path, const QString& FileSpec);

// Takes dropped names in, in their order: folders by a scan pass each, which clears the list first if
// `clearsList` is set; files that pass by a row each. A stop during a scan ends it all. The list should be
// locked; finish with FinishDrop.
DropCounts TakeDrop(const QStringList& paths, FileList& list, Scanner& scanner, const ScanSettings& settings,
                    bool clearsList);

// The list without duplicates, sorted by folder.
void FinishDrop(FileList& list);

} // namespace fileview
