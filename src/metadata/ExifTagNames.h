// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace metadata {

// The name of an EXIF tag, else "Tag #" and its number.
QString ExifTagName(int number);

} // namespace metadata
