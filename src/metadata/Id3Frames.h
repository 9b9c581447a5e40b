// SPDX-License-Identifier: MIT
//
// The frames of an ID3v2 tag: where they lie in its bytes, and what they hold. The reader and the writer of
// tags stand on it. Source: ID3v2.2.0, ID3v2.3.0, ID3v2.4.0.
#pragma once

#include "metadata/Id3Tags.h"

#include <QByteArray>

#include <optional>

namespace metadata {

// A frame whose data lie in the bytes that were walked.
struct Id3Frame
{
    QByteArray id;          // three characters below version 2.3, else four; they lie there, too
    int formatFlags = 0;    // the second of the two flag bytes
    QByteArrayView data;    // as much as there is of it
    QByteArrayView content; // the same with its header
    bool isCutOff = false;  // by the bytes' end
};

// Steps through the frames of a tag, given without header and extended header.
class Id3FrameWalk
{
public:
    // `major` is 3 for ID3v2.3. The bytes must outlive the walk and its frames.
    Id3FrameWalk(int major, QByteArrayView bytes) : major_(major), bytes_(bytes) {}

    // The next frame; one that the bytes' end cuts off comes as far as it goes. Nothing at padding, at the
    // signature that a program leaves in it, and where no whole frame header is left.
    std::optional<Id3Frame> Next();

    // How many bytes lie behind the frames that were given.
    qsizetype Left() const { return bytes_.size() - at_; }

private:
    bool StartsWith(qsizetype at, std::string_view text) const;
    bool IsSignature() const;

    const int major_;
    const QByteArrayView bytes_;
    qsizetype at_ = 0; // the next frame
};

// What lies behind a frame's encoding byte. A compressed frame has nothing.
class Id3FrameContent
{
public:
    Id3FrameContent(int major, const Id3Frame& frame);

    // 0 code page, 1 UTF-16 with marks, 2 UTF-16, 3 UTF-8. Nothing where the data have no such byte.
    std::optional<int> Encoding() const { return encoding_; }
    QByteArrayView Bytes() const { return bytes_; }

private:
    QByteArray undone_; // of an unsynchronised frame
    QByteArrayView bytes_;
    std::optional<int> encoding_;
};

// A comment or a text of a song, which have a language and may have a description.
bool IsComment(const QByteArray& id);

struct Id3FrameText
{
    QString text; // up to its first zero: of a comment with a description that
    bool hasDescription = true;
};

Id3FrameText DecodeFrameText(int major, const Id3Frame& frame);

// The property that is the text of a frame, by the frame's name in either spelling; null for frames with
// rules of their own and for unknown ones.
QString Id3Tags::*PropertyOfFrame(const QByteArray& id);

} // namespace metadata
