// SPDX-License-Identifier: MIT
#include "metadata/Lyrics3.h"

#include "platform/Conversions.h"
#include "platform/TextFile.h"

#include <algorithm>
#include <cmath>
#include <string>
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
    return number && *number >= 0 && *number == std::floor(*number);
}

// Cuts a time, "[01:23]Hello", down to "[0Hello", and so on from the same bracket. One without a time ends
// the work.
QString WithoutTimes(QString text)
{
    for (qsizetype open = text.indexOf(u'['); open >= 0; open = text.indexOf(u'[', open)) {
        const qsizetype close = text.indexOf(u']', open);
        const QStringList parts =
            close < 0 ? QStringList() : text.mid(open + 1, close - open - 1).split(u':');
        if (parts.size() != 2 || !IsWholeNumber(parts[0]) || !IsWholeNumber(parts[1])) {
            break;
        }
        text.remove(open + 2, close - open - 1);
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

// A field of a version 2 block.
struct Field
{
    QByteArrayView id;
    QByteArrayView data; // as much as there is of it
};

// Steps through the fields of a block. A size that isn't all digits ends them.
class FieldWalk
{
public:
    explicit FieldWalk(QByteArrayView block) : block_(block) {}

    std::optional<Field> Next()
    {
        const qsizetype left = block_.size() - at_ - FieldHeaderSize;
        if (left < 0 || !IsDigits(block_.sliced(at_ + 3, 5))) {
            return std::nullopt;
        }
        const qint64 size = std::min<qint64>(ToNumber(block_.sliced(at_ + 3, 5)), left);
        const Field field{block_.sliced(at_, 3), block_.sliced(at_ + FieldHeaderSize, size)};
        at_ += FieldHeaderSize + size;
        return field;
    }

    qsizetype At() const { return at_; }

private:
    const QByteArrayView block_;
    qsizetype at_ = BlockBegin.size();
};

QByteArray FieldBytes(QByteArrayView id, QByteArrayView data)
{
    return id.toByteArray() + QByteArray::number(data.size()).rightJustified(5, '0') + data.toByteArray();
}

// What a block tells of a field; empty for no field.
QByteArray TextOfField(QByteArrayView id, const Id3Tags& tags)
{
    constexpr std::size_t longestElsewhere = 30;
    constexpr std::size_t longest = 250;
    QString text = id == "EAL"   ? tags.Album
                   : id == "EAR" ? tags.Artist
                   : id == "ETT" ? tags.Title
                                 : QString();
    const std::u32string characters = text.toStdU32String();
    if (characters.size() <= longestElsewhere) {
        return {};
    }
    text = QString::fromStdU32String(characters.substr(0, longest));
    text.replace(QStringLiteral("\r\n"), QStringLiteral("[CR][LF]"));
    text.replace(u'\r', QStringLiteral("[CR]"));
    text.replace(u'\n', QStringLiteral("[LF]"));
    return platform::ToWindows1252OrMark(text);
}

// The bytes in which the beginning of a version 1 block is looked for.
QByteArray RangeOfVersion1(const platform::FileBytes& file, qint64 audioEnd)
{
    constexpr qint64 longest = 5'100;
    const qint64 end = audioEnd - 20;
    const qint64 first = end > longest ? audioEnd - 5'119 : 1;
    return file.Read(first - 1, end - first + 1);
}

// The text of a version 1 block: what lies behind the last beginning in the bytes before `audioEnd`. Its last
// eleven characters lie behind the bytes that are searched, and are lost.
void ReadVersion1(const platform::FileBytes& file, qint64 audioEnd, Id3Tags& tags)
{
    const QByteArray range = RangeOfVersion1(file, audioEnd);
    const qsizetype begin = range.lastIndexOf(BlockBegin);
    if (begin >= 0) {
        SetIfEmpty(tags.Lyrics, platform::FromWindows1252(range.sliced(begin + BlockBegin.size())));
    }
}

} // namespace

void ReadLyrics3Fields(QByteArrayView block, Id3Tags& tags)
{
    bool hasTimes = false;
    FieldWalk walk(block);
    for (qsizetype at = walk.At(); const auto field = walk.Next(); at = walk.At()) {
        const QByteArrayView id = field->id;
        const QString text = TextOf(field->data);
        if (id == "IND") {
            // The flag is looked for as far into the field as the field lies in the block, where there is
            // usually nothing: so times stay in the text.
            hasTimes = field->data.size() > at + 5 && field->data[at + 5] == '1';
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
    }
}

Lyrics3Found ReadLyrics3(const platform::FileBytes& file, QByteArrayView end, qint64 audioEnd, Id3Tags& tags)
{
    constexpr qint64 digitCount = 6;
    Lyrics3Found found;
    found.audioEnd = audioEnd;
    if (end.endsWith("LYRICS200")) {
        found.version2 = true;
        const QByteArrayView digits = end.first(end.size() == Lyrics3EndSize ? digitCount : 0);
        const qint64 size = IsDigits(digits) ? ToNumber(digits) : 0;
        const qint64 blockEnd = audioEnd - Lyrics3EndSize - size;
        const QByteArray block = file.Read(blockEnd, size);
        if (block.startsWith(BlockBegin)) {
            found.audioEnd = blockEnd;
            found.block = block;
            ReadLyrics3Fields(block, tags);
        }
    } else if (end.endsWith("LYRICSEND")) {
        found.version1 = true;
        ReadVersion1(file, audioEnd, tags);
    }
    return found;
}

qint64 AudioEndBeforeVersion1(const platform::FileBytes& file, qint64 audioEnd)
{
    const QByteArray range = RangeOfVersion1(file, audioEnd);
    const qsizetype begin = range.lastIndexOf(BlockBegin) + 1; // counted from 1
    return begin == 0 ? audioEnd : audioEnd - 16 - range.size() + begin;
}

std::optional<QByteArray> BuildLyrics3(QByteArrayView oldBlock, const Id3Tags& tags)
{
    QByteArrayList left{"LYR", "AUT", "EAL", "EAR", "ETT"};
    const auto isLong = [&tags](const QByteArray& id) {
        return !TextOfField(id, tags).isEmpty();
    };
    if (std::none_of(left.cbegin(), left.cend(), isLong)) {
        return QByteArray();
    }
    QByteArray block = BlockBegin.toByteArray() + FieldBytes("IND", "00");
    const auto append = [&](const QByteArray& id) {
        const QByteArray text = TextOfField(id, tags);
        block += text.isEmpty() ? QByteArray() : FieldBytes(id, text);
    };
    const QByteArrayList known = left;
    FieldWalk walk(oldBlock);
    while (const auto field = walk.Next()) {
        const QByteArray id = field->id.toByteArray();
        if (known.contains(id)) {
            append(id);
            left.removeOne(id);
        } else if (id != "IND") { // there is one already
            block += FieldBytes(id, field->data);
        }
    }
    for (const QByteArray& id : std::as_const(left)) {
        append(id);
    }
    const QByteArray size = QByteArray::number(block.size()).rightJustified(6, '0');
    return size.size() == 6 ? std::optional(block + size + "LYRICS200") : std::nullopt;
}

} // namespace metadata
