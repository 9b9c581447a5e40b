// SPDX-License-Identifier: MIT
//
// Reading an ID3v2 tag of version 2.2, 2.3 or 2.4. Where names depend on it, the reader departs from the
// formats and says so. Source: ID3v2.2.0, ID3v2.3.0, ID3v2.4.0.
#pragma once

#include "metadata/Id3Tags.h"

#include <QByteArray>

#include <optional>

namespace metadata {

// The ten bytes at a tag's start.
struct Id3v2Header
{
    int major = 0; // 3 for ID3v2.3
    bool isUnsynchronised = false;
    bool isCompressed = false; // its frames can't be read
    bool hasExtendedHeader = false;
    bool hasFooter = false;
    qint64 size = 0; // of what follows the header, without a footer
};

constexpr qint64 Id3v2HeaderSize = 10; // and that of a footer

// Bits of a header.
enum Id3v2Flag {
    UnsynchronisationFlag = 128,
    CompressionFlag = 64,    // below version 2.3
    ExtendedHeaderFlag = 64, // from version 2.3 on
    FooterFlag = 16,         // from version 2.4 on
};

// Nothing if the bytes are no tag's start.
std::optional<Id3v2Header> ReadId3v2Header(QByteArrayView bytes);

// A number of big-endian bytes, in base 128 or 256.
qint64 ReadSize(QByteArrayView bytes, bool isBase128);

// Takes out the byte 0 behind each byte FF.
QByteArray UndoUnsync(QByteArrayView bytes);

// The bytes of the frames and what is behind them: `body`, which follows the header and may be shorter than
// that says, without unsynchronisation and extended header. None if the tag is compressed.
QByteArray FramesOf(const Id3v2Header& header, const QByteArray& body);

// Reads the frames into `tags`. `body` is what follows the header; it may be shorter than the header says. A
// tag that isn't as it should be ends at that place, and what was read stays.
void ReadId3v2Frames(const Id3v2Header& header, const QByteArray& body, Id3Tags& tags);

} // namespace metadata
