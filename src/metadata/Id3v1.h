// SPDX-License-Identifier: MIT
//
// The ID3v1 block: the last 128 bytes of an audio file, "TAG" and fields of fixed sizes in the code page
// Windows-1252. Source: ID3v1 and ID3v1.1.
#pragma once

#include "metadata/Id3Tags.h"

#include <QByteArray>

namespace metadata {

constexpr qint64 Id3v1Size = 128;

// Fills what is still empty from a block. REQUIRES: it has Id3v1Size bytes.
void FillFromId3v1(QByteArrayView block, Id3Tags& tags);

// The block of some tags; empty if there is nothing to tell. Texts are cut to their fields, and "?" stands
// for a character that the code page lacks.
QByteArray BuildId3v1(const Id3Tags& tags);

} // namespace metadata
