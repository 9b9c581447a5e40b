// SPDX-License-Identifier: MIT
//
// Writing an ID3v2 tag anew: known frames take the values of an Id3Tags, in place, and all others stay as
// they are. Where files depend on it, the writer departs from the formats and says so. Source: ID3v2.2.0,
// ID3v2.3.0, ID3v2.4.0.
#pragma once

#include "metadata/Id3v2.h"

namespace metadata {

// The bytes of a whole tag. `old` and `frames` (see FramesOf) are the file's tag; without one a tag of
// version 2.3 is made. Padding stays as long as it was; where there was none it is 2,048 bytes. Texts are
// written in the code page Windows-1252, and only where that lacks a character in UTF-16. Nothing if a frame
// or the tag is larger than its header can say.
std::optional<QByteArray> BuildId3v2(const std::optional<Id3v2Header>& old, QByteArrayView frames,
                                     const Id3Tags& tags);

// A big-endian number of `count` bytes in base 128 or 256. Nothing if it has no room.
std::optional<QByteArray> SizeBytes(qint64 size, int count, bool isBase128);

} // namespace metadata
