// SPDX-License-Identifier: MIT
#include "fuzz/Support.h"
#include "fuzz/TagTexts.h"
#include "fuzz/Targets.h"
#include "metadata/Id3v2.h"

namespace fuzz {

namespace {

// What a writer does to hide bytes that look like audio: a byte 0 behind each FF.
QByteArray Unsynchronised(const QByteArray& bytes)
{
    return QByteArray(bytes).replace("\xFF", QByteArrayView("\xFF\0", 2));
}

QStringList TextsOf(const metadata::Id3v2Header& header, const QByteArray& body)
{
    metadata::clsID3 tags;
    metadata::ReadId3v2Frames(header, body, tags);
    return TagTexts(tags);
}

} // namespace

void ReadId3v2Tag(QByteArrayView tag)
{
    const auto found = metadata::ReadId3v2Header(tag);
    metadata::Id3v2Header header = found.value_or(metadata::Id3v2Header{.major = 3, .size = tag.size()});
    Require(header.size >= 0 && header.size < qint64{1} << 28, "a tag's size has 28 bits");
    const QByteArray body = tag.sliced(found ? metadata::Id3v2HeaderSize : 0).toByteArray();
    const QStringList texts = TextsOf(header, body);
    const qsizetype length = texts.join(QString()).size();
    // A picture's bytes and a text are each of a frame's own, but for a zero that is a number's default.
    Require(length <= 2 * body.size() + 16, "texts come out of the tag and out of nowhere else");

    const QByteArray hidden = Unsynchronised(body);
    Require(metadata::UndoUnsync(hidden) == body, "unsynchronised bytes come back");
    if (header.major < 4) {
        header.isUnsynchronised = false;
        const QStringList plain = TextsOf(header, body);
        header.isUnsynchronised = true;
        Require(TextsOf(header, hidden) == plain, "a tag reads alike with and without unsynchronisation");
    }
}

} // namespace fuzz
