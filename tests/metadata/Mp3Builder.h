// SPDX-License-Identifier: MIT
//
// A tiny language for the bytes of an MP3: frames of a tag, the tag, ID3v1, Lyrics3 and audio.
#pragma once

#include <QByteArray>

namespace testing_support {

inline QByteArray BigEndian(quint64 number, int bytes, int base = 256)
{
    QByteArray text;
    for (int at = 0; at < bytes; ++at, number /= static_cast<quint64>(base)) {
        text.prepend(static_cast<char>(number % static_cast<quint64>(base)));
    }
    return text;
}

// A frame; an id of three characters is one of version 2.2.
inline QByteArray Id3Frame(const QByteArray& id, const QByteArray& data, int major = 3, int flags = 0)
{
    const auto size = static_cast<quint64>(data.size());
    return id.size() == 3 ? id + BigEndian(size, 3) + data
                          : id + BigEndian(size, 4, major == 4 ? 128 : 256) +
                                BigEndian(static_cast<quint64>(flags), 2) + data;
}

inline QByteArray Id3Tag(int major, const QByteArray& frames, int flags = 0)
{
    return "ID3" + BigEndian(static_cast<quint64>(major), 1) + BigEndian(0, 1) +
           BigEndian(static_cast<quint64>(flags), 1) +
           BigEndian(static_cast<quint64>(frames.size()), 4, 128) + frames;
}

inline QByteArray Id3v1(const QByteArray& title, const QByteArray& artist, const QByteArray& comment,
                        int genre)
{
    const QByteArray album = "One Album";
    return "TAG" + title.leftJustified(30, '\0') + artist.leftJustified(30, ' ') +
           album.leftJustified(30, '\0') + "1999" + comment.leftJustified(30, '\0') +
           static_cast<char>(genre);
}

inline QByteArray Lyrics3v2(const QByteArray& fields)
{
    const QByteArray block = "LYRICSBEGIN" + fields;
    return block + QByteArray::number(block.size()).rightJustified(6, '0') + "LYRICS200";
}

inline QByteArray Lyrics3Field(const QByteArray& id, const QByteArray& text)
{
    return id + QByteArray::number(text.size()).rightJustified(5, '0') + text;
}

// Audio that begins with a frame of that header and whose further bytes are `content`, then blanks.
inline QByteArray Audio(quint32 header, const QByteArray& content = {}, qsizetype size = 1'000)
{
    return BigEndian(header, 4) + content.leftJustified(size - 4, ' ');
}

} // namespace testing_support
