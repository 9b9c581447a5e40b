// SPDX-License-Identifier: MIT
#include "metadata/Lyrics3.h"

#include "platform/Conversions.h"
#include "platform/TextFile.h"

#include <algorithm>
#include <string_view>

namespace metadata {

namespace {

constexpr QByteArrayView BlockBegin = "LYRICSBEGIN";
constexpr qsizetype FieldHeaderSize = 8; // three letters and five digits

bool IsDigits(QByteArrayView bytes)
{
    return !bytes.isEmpty() &&
           std::all_of(bytes.begin(), bytes.end(), [](char byte) { return byte >= '0' && byte <= '9'; });
}

qint64 ToNumber(QByteArrayView digits)
{
    return digits.toByteArray().toLongLong();
}

bool IsWholeNumber(const QString& text)
{
    const auto number = platform::ToNumber(text);
    return number && *number >= 0 && *number == static_cast<double>(static_cast<qint64>(*number));
}

// Empties brackets that hold a time, "[01:23]", and leaves them standing as "[]" does with its text behind.
// Another bracket ends the work.
QString WithoutTimes(QString text)
{
    for (qsizetype open = text.indexOf(u'['); open >= 0; open = text.indexOf(u'[', open + 1)) {
        const qsizetype close = text.indexOf(u']', open);
        const QStringList parts =
            close < 0 ? QStringList() : text.mid(open + 1, close - open - 1).split(u':');
        if (parts.size() != 2 || !IsWholeNumber(parts[0]) || !IsWholeNumber(parts[1])) {
            break;
        }
        text.remove(open + 1, close - open);
    }
    return text;
}

QString TextOf(QByteArrayView bytes)
{
    QString text = platform::FromWindows1252(bytes);
    text.replace(QStringLiteral("[CR][LF]"), QStringLiteral("\r\n"));
    text.replace(QStringLiteral("[CR]"), QStringLiteral("\r"));
    text.replace(QStringLiteral("[LF]"), QStringLiteral("\n"));
    return text;
}

void SetIfEmpty(QString& property, const QString& text)
{
    if (property.isEmpty()) {
        property = text;
    }
}

// The text of a version 1 block: what lies behind the last beginning in the bytes before `audioEnd`. Its last
// eleven characters lie behind the bytes that are searched, and are lost.
void ReadVersion1(const platform::FileBytes& file, qint64 audioEnd, Id3Tags& tags)
{
    constexpr qint64 longest = 5'100;
    const qint64 end = audioEnd - 20;
    const qint64 first = end > longest ? audioEnd - 5'119 : 1;
    const QByteArray range = file.Read(first - 1, end - first + 1);
    const qsizetype begin = range.lastIndexOf(BlockBegin);
    if (begin >= 0) {
        SetIfEmpty(tags.Lyrics, platform::FromWindows1252(range.sliced(begin + BlockBegin.size())));
    }
}

} // namespace

void ReadLyrics3Fields(QByteArrayView block, Id3Tags& tags)
{
    bool hasTimes = false;
    qsizetype at = BlockBegin.size();
    while (block.size() - at >= FieldHeaderSize) {
        const QByteArrayView id = block.sliced(at, 3);
        const QByteArrayView digits = block.sliced(at + 3, 5);
        if (!IsDigits(digits)) {
            break;
        }
        const qint64 size = ToNumber(digits);
        const qsizetype rest = block.size() - at - FieldHeaderSize;
        const QByteArrayView data = block.sliced(at + FieldHeaderSize, std::min<qint64>(size, rest));
        const QString text = TextOf(data);
        if (id == "IND") {
            // The flag is looked for as far into the field as the field lies in the block, where there is
            // usually nothing: so times stay in the text.
            hasTimes = data.size() > at + 5 && data[at + 5] == '1';
        } else if (id == "LYR") {
            SetIfEmpty(tags.Lyrics, hasTimes ? WithoutTimes(text) : text);
        } else if (id == "AUT") {
            SetIfEmpty(tags.Lyricist, text);
        } else if (id == "EAL") {
            SetIfEmpty(tags.Album, text);
        } else if (id == "EAR") {
            SetIfEmpty(tags.Artist, text);
        } else if (id == "ETT") {
            SetIfEmpty(tags.Title, text);
        }
        if (size > rest) {
            break;
        }
        at += FieldHeaderSize + size;
    }
}

Lyrics3Found ReadLyrics3(const platform::FileBytes& file, qint64 audioEnd, Id3Tags& tags)
{
    constexpr qint64 markSize = 9;
    constexpr qint64 sizeSize = 6;
    Lyrics3Found found{.audioEnd = audioEnd};
    const QByteArray tail = file.Read(audioEnd - markSize - sizeSize, markSize + sizeSize);
    const QByteArray mark = tail.right(markSize);
    if (mark == "LYRICS200") {
        found.version2 = true;
        const QByteArray digits = tail.first(sizeSize);
        const qint64 size = tail.size() == markSize + sizeSize && IsDigits(digits) ? ToNumber(digits) : 0;
        const qint64 end = audioEnd - markSize - sizeSize - size;
        const QByteArray block = file.Read(end, size);
        if (block.startsWith(BlockBegin)) {
            found.audioEnd = end;
            ReadLyrics3Fields(block, tags);
        }
    } else if (mark == "LYRICSEND") {
        found.version1 = true;
        ReadVersion1(file, audioEnd, tags);
    }
    return found;
}

} // namespace metadata
