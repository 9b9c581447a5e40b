// SPDX-License-Identifier: MIT
#include "fuzz/Support.h"
#include "fuzz/TagTexts.h"
#include "fuzz/Targets.h"
#include "metadata/Lyrics3.h"

namespace fuzz {

namespace {

constexpr qsizetype LongestBlock = 999'999; // its size has six digits

metadata::Lyrics3Found ReadFile(QByteArrayView content, metadata::Id3Tags& tags)
{
    const auto file = platform::FileBytes::Open(WriteFile("lyrics.mp3", content));
    Require(file.has_value(), "a file can be opened");
    const QByteArrayView end = content.last(std::min<qsizetype>(metadata::Lyrics3EndSize, content.size()));
    const metadata::Lyrics3Found found = metadata::ReadLyrics3(*file, end, file->Size(), tags);
    Require(found.audioEnd >= 0 && found.audioEnd <= file->Size(), "the audio ends in the file");
    Require(!found.version1 || !found.version2, "a block is of one version");
    return found;
}

} // namespace

void ReadLyrics3(QByteArrayView file)
{
    metadata::clsID3 tags;
    ReadFile(file, tags);

    // The same bytes as the fields of a block that is as it should be.
    const QByteArray block = "LYRICSBEGIN" + file.toByteArray();
    if (block.size() <= LongestBlock) {
        metadata::clsID3 fromFields, fromFile;
        metadata::ReadLyrics3Fields(block, fromFields);
        const QByteArray size = QByteArray::number(block.size()).rightJustified(6, '0');
        const metadata::Lyrics3Found found = ReadFile(block + size + "LYRICS200", fromFile);
        Require(found.version2 && found.audioEnd == 0, "a whole block is found");
        Require(TagTexts(fromFile) == TagTexts(fromFields), "a block reads alike alone and in a file");
    }
}

} // namespace fuzz
