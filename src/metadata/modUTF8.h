// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

namespace metadata {

// Text of UTF-8 bytes, read leniently: a byte below 192 is a character of its own, 192 to 223 takes one byte
// more, 224 and above two more, also at the start of a form of four. What follows isn't checked. A form with
// too few bytes ends the text.
QString DecodeUtf8(QByteArrayView bytes);

} // namespace metadata
