// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace metadata {

// The name of an EXIF tag, else "Tag #" and its number.
QString ExifTagName(int number);

// The tags that are offered for names, in their order.
const QStringList& OfferedExifTags();

} // namespace metadata
