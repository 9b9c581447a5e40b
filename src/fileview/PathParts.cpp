// SPDX-License-Identifier: MIT
#include "fileview/PathParts.h"

#include <algorithm>

namespace fileview {

QString PartOf(const QString& path, PathPart part, const QString& separators)
{
    qsizetype nameAt = 0;
    for (const QChar separator : separators) {
        nameAt = std::max(nameAt, path.lastIndexOf(separator) + 1);
    }
    const qsizetype dot = path.lastIndexOf(u'.');
    const bool hasExtension = dot >= nameAt;
    const QString folder = path.left(nameAt);
    const QString baseName = path.mid(nameAt, hasExtension ? dot - nameAt : -1);
    switch (part) {
    case PathPart::BaseName:
        return baseName;
    case PathPart::Extension:
        return hasExtension ? path.mid(dot + 1) : QString();
    case PathPart::Folder:
        return folder;
    case PathPart::FolderWithoutEnd:
        return folder.chopped(folder.isEmpty() ? 0 : 1);
    case PathPart::Name:
        return hasExtension ? path.mid(nameAt) : baseName;
    case PathPart::FolderAndBaseName:
        return folder + baseName;
    case PathPart::NameOfFolder:
        return folder.isEmpty() ? folder : PartOf(folder.chopped(1), PathPart::BaseName, separators);
    }
    return {};
}

} // namespace fileview
