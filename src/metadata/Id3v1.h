// SPDX-License-Identifier: MIT
//
// The ID3v1 block: the last 128 bytes of an audio file, "TAG" and fields of fixed sizes in the code page
// Windows-1252. Source: ID3v1 and ID3v1.1.
#pragma once

#include "metadata/Id3Tags.h"
#include "platform/FileBytes.h"

#include <QByteArray>

namespace metadata {

constexpr qint64 Id3v1Size = 128;

// The end of a file in which tags may stand, read at once.
struct FileEnd
{
    QByteArray id3v1;    // the block, or empty
    QByteArray audio;    // the last bytes in front of it, in which a Lyrics3 block may end
    qint64 audioEnd = 0; // the last byte in front of it, counted from 1
};

FileEnd ReadFileEnd(const platform::FileBytes& file);

// Fills what is still empty from a block. REQUIRES: it has Id3v1Size bytes.
void FillFromId3v1(QByteArrayView block, Id3Tags& tags);

// The block of some tags; empty if there is nothing to tell. Texts are cut to their fields, and "?" stands
// for a character that the code page lacks.
QByteArray BuildId3v1(const Id3Tags& tags);

} // namespace metadata
