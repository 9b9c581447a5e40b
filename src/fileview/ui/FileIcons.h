// SPDX-License-Identifier: MIT
//
// FileIcons: one small picture a kind of file, from the desktop's icon theme, or drawn where the theme has
// none. Each is made when it is first shown.
#pragma once

#include "model/FileRow.h"

#include <QHash>
#include <QIcon>
#include <QString>

namespace fileview {

QIcon IconOfFolder();

class FileIcons
{
public:
    // The icon of a row, the same for all rows with one key (FileInfo.h). Null for a file that wasn't found.
    QIcon Of(const model::FileRow& row);

private:
    QHash<QString, QIcon> byKey_;
};

} // namespace fileview
