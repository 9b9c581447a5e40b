// SPDX-License-Identifier: MIT
//
// Reading the Lyrics3 block, version 1 or 2, in front of an ID3v1 block or at the end of an audio file.
// Source: Lyrics3 v2.00.
#pragma once

#include "metadata/Id3Tags.h"
#include "platform/FileBytes.h"

#include <optional>

namespace metadata {

struct Lyrics3Found
{
    bool version1 = false;
    bool version2 = false;
    qint64 audioEnd = 0; // the last byte in front of a version 2 block; version 1 counts as audio
    QByteArray block;    // of version 2, from "LYRICSBEGIN" to its last field
};

// What a block ends with: six digits and "LYRICS200" or "LYRICSEND".
constexpr qint64 Lyrics3EndSize = 15;

// Looks for a block that ends at `audioEnd`, counted from 1, and fills the texts that are still empty. `end`
// are the bytes up to there, Lyrics3EndSize of them or as many as there are.
Lyrics3Found ReadLyrics3(const platform::FileBytes& file, QByteArrayView end, qint64 audioEnd, Id3Tags& tags);

// Applies the fields of a version 2 block, which begins with "LYRICSBEGIN". A size that isn't all digits ends
// the fields.
void ReadLyrics3Fields(QByteArrayView block, Id3Tags& tags);

// Where the audio in front of a version 1 block that ends at `audioEnd` ends, counted from 1. The first five
// letters of the block count as audio. `audioEnd` itself if no beginning is found.
qint64 AudioEndBeforeVersion1(const platform::FileBytes& file, qint64 audioEnd);

// A version 2 block for titles, artists and albums of over 30 characters, of which it keeps 250; empty if
// none is that long. Fields of an old block that this system doesn't know stay, texts of songs go. Nothing if
// it becomes longer than its header can say.
std::optional<QByteArray> BuildLyrics3(QByteArrayView oldBlock, const Id3Tags& tags);

} // namespace metadata
