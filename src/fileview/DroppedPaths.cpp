// SPDX-License-Identifier: MIT
#include "fileview/DroppedPaths.h"

#include "fileview/PathParts.h"

namespace fileview {

bool PassesFileSpec(const QString& path, const QString& FileSpec)
{
    const QString extensions = FileSpec.mid(FileSpec.lastIndexOf(u'.') + 1).remove(u'*');
    const bool namesAny = FileSpec.contains(u'.') && !extensions.isEmpty();
    return !namesAny || extensions.contains(PartOf(path, PathPart::Extension), Qt::CaseInsensitive);
}

DropCounts TakeDrop(const QStringList& paths, FileList& list, Scanner& scanner, const ScanSettings& settings,
                    bool clearsList)
{
    DropCounts counts;
    platform::FileSystem files;
    for (const QString& path : paths) {
        ++counts.Total;
        const QString folder = PartOf(path, PathPart::Folder);
        const QString name = PartOf(path, PathPart::Name);
        const auto info = files.GetInfo(folder, name);
        if (info && info->isFolder) {
            ++counts.Folders;
            const bool wasStopped = scanner.Stopped() && !clearsList; // by an earlier scan
            scanner.ScanPass(path, clearsList);
            if (scanner.Stopped() && !wasStopped) {
                break;
            }
            continue;
        }
        ++counts.Files;
        if (PassesFileSpec(path, settings.FileSpec)) {
            list.AddFile(folder, name, files);
        }
    }
    return counts;
}

void FinishDrop(FileList& list)
{
    list.RemoveDuplicates();
    list.SortCustom(FileList::Path, true, ldtString);
}

} // namespace fileview
