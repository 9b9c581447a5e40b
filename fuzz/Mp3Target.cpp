// SPDX-License-Identifier: MIT
#include "fuzz/Support.h"
#include "fuzz/TagTexts.h"
#include "fuzz/Targets.h"
#include "metadata/Id3v2.h"

#include <cmath>

namespace fuzz {

namespace {

void CheckAudio(const metadata::MpegHeader& audio, QByteArrayView file)
{
    const qint64 behind = audio.FirstFramePos(); // of the byte behind the frame's four, counted from 1
    if (behind != 0) {
        Require(behind > 4 && behind <= file.size() + 1, "the first frame lies in the file");
        const auto first = static_cast<uchar>(file[behind - 5]);
        const auto second = static_cast<uchar>(file[behind - 4]);
        Require(first == 0xFF && (second & 0xE0) == 0xE0, "the first frame begins with its mark");
        Require(audio.SamplingRateFrequency() > 0, "the first frame has a sampling rate");
    }
    for (const auto& number : {audio.BitRate(), audio.FrameSize(), audio.Length()}) {
        Require(!number || std::isfinite(*number), "what is told of the audio are numbers");
    }
}

// Whether what follows the file can't become a part of the tag at its start.
bool HoldsItsTag(QByteArrayView file)
{
    const auto header = metadata::ReadId3v2Header(file);
    return file.size() >= metadata::Id3v2HeaderSize + (header ? header->size : 0);
}

} // namespace

void ReadMp3(QByteArrayView file)
{
    metadata::clsID3 tags;
    tags.SetFileName(WriteFile("music.mp3", file));
    const QStringList texts = TagTexts(tags);
    CheckAudio(tags.Mpeg(), file);
    tags.RefreshID3Tags();
    Require(TagTexts(tags) == texts, "a file that is read again tells the same");
    if (!tags.ID3v1Exists() && HoldsItsTag(file)) {
        const QByteArray emptyTag = QByteArray("TAG").leftJustified(128, '\0');
        tags.SetFileName(WriteFile("music.mp3", file.toByteArray() + emptyTag));
        Require(tags.ID3v1Exists() && TagTexts(tags) == texts, "an empty tag at the end changes nothing");
    }
}

} // namespace fuzz
