// SPDX-License-Identifier: MIT
#include "metadata/MpegHeader.h"

#include <algorithm>

namespace metadata {

namespace {

constexpr qint64 ChunkSize = 20'480;
constexpr qint64 FrameView = 156; // bytes behind the FF that are looked at

enum Version { Mpeg25 = 0, ReservedVersion = 1, Mpeg1 = 2, Mpeg2 = 3 };
enum LayerCode { ReservedLayer = 0, LayerIII = 1, LayerII = 2, LayerI = 3 };
constexpr int Mono = 3;

// By version and rate code.
constexpr int SamplingRates[4][4] = {
    {11025, 12000, 8000, -1}, {-1, -1, -1, -1}, {44100, 48000, 32000, -1}, {22050, 24000, 16000, -1}};

// Kilobits a second by the header's index: MPEG 1 Layer I, II, III, then MPEG 2 Layer I, and II and III.
constexpr int BitRates[5][16] = {
    {0, 32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448, -1},
    {0, 32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384, -1},
    {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, -1},
    {0, 32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256, -1},
    {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160, -1},
};

std::optional<double> Quotient(double dividend, double divisor)
{
    return divisor == 0 ? std::nullopt : std::optional(dividend / divisor);
}

ByteView ViewOf(const QByteArray& bytes)
{
    return ByteView(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

bool HasMark(const ByteView& frame, std::size_t position, QByteArrayView mark)
{
    const auto part = frame.Part(position, 4);
    return part && QByteArray(part->Bytes().data(), 4).toLower() == mark;
}

// A number of four bytes is read with its sign.
qint32 Signed(const ByteView& frame, std::size_t position)
{
    return static_cast<qint32>(frame.UInt32(position, ByteOrder::BigEndian).value_or(0));
}

} // namespace

MpegHeader::MpegHeader(const platform::FileBytes& file, qint64 start, qint64 end)
{
    for (qint64 chunk = start; chunk <= end; chunk += ChunkSize) {
        // With the bytes behind it that belong to a candidate at its end.
        const QByteArray bytes = file.Read(chunk - 1, std::min(ChunkSize + FrameView, end - chunk + 1));
        const qint64 last = std::min<qint64>(bytes.size(), ChunkSize);
        for (qsizetype at = bytes.indexOf('\xFF'); at >= 0 && at < last;) {
            const QByteArray behind = bytes.mid(at + 1, FrameView);
            if (behind.size() < 3) {
                return; // nothing more fits in front of the audio's end
            }
            std::copy_n(behind.begin(), 3, headerBytes_.begin());
            const bool isSync = (headerBytes_[0] & 0xE0) == 0xE0;
            if (isSync && IsAcceptable()) {
                firstFramePos_ = chunk + at + 4;
                audioBytes_ = end - firstFramePos_;
                const ByteView frame = ViewOf(behind);
                ReadXing(frame);
                ReadVbri(frame);
                return;
            }
            at = bytes.indexOf('\xFF', at + (isSync ? 4 : 1));
        }
    }
}

// A real frame, and no chance bytes. Emphasis 2 is reserved.
bool MpegHeader::IsAcceptable() const
{
    return MPEGVersion() != ReservedVersion && Layer() != ReservedLayer && SamplingRateFrequency() != -1 &&
           TableBitRate() > 0 && (headerBytes_[2] & 3) != 2;
}

int MpegHeader::Layer() const
{
    return headerBytes_[0] >> 1 & 3;
}

int MpegHeader::Padding() const
{
    const bool isPadded = (headerBytes_[1] >> 1 & 1) != 0;
    return isPadded ? (Layer() == LayerI ? 4 : 1) : 0;
}

int MpegHeader::MPEGVersion() const
{
    static constexpr int versions[] = {Mpeg25, ReservedVersion, Mpeg2, Mpeg1}; // by bit pattern
    return versions[headerBytes_[0] >> 3 & 3];
}

int MpegHeader::ChannelMode() const
{
    return headerBytes_[2] >> 6;
}

int MpegHeader::SamplingRateFrequency() const
{
    return SamplingRates[MPEGVersion()][headerBytes_[1] >> 2 & 3];
}

int MpegHeader::TableBitRate() const
{
    if (MPEGVersion() == ReservedVersion || Layer() == ReservedLayer) {
        return 0;
    }
    const int row = MPEGVersion() == Mpeg1 ? LayerI - Layer() : Layer() == LayerI ? 3 : 4;
    return BitRates[row][headerBytes_[1] >> 4];
}

int MpegHeader::FrameSamples() const
{
    switch (Layer()) {
    case LayerI:
        return 384;
    case LayerII:
        return 1152;
    case LayerIII:
        return MPEGVersion() == Mpeg1 ? 1152 : 576;
    default:
        return 0;
    }
}

std::optional<double> MpegHeader::BitRate() const
{
    if (!isVbr_) {
        return TableBitRate() * 1000.0;
    }
    const auto size = FrameSize();
    if (!size) {
        return std::nullopt;
    }
    const auto length = Length();
    if (*size != 0 || !length || *length <= 0) {
        return *size * SamplingRateFrequency() / 144;
    }
    return static_cast<double>(audioBytes_) / *length * 8;
}

std::optional<double> MpegHeader::FrameSize() const
{
    if (isVbr_) {
        return Quotient(vbrBytes_, vbrFrames_);
    }
    const auto size = Quotient(FrameSamples() / 8.0 * TableBitRate() * 1000.0, SamplingRateFrequency());
    return size ? std::optional(*size + Padding()) : std::nullopt;
}

std::optional<double> MpegHeader::Length() const
{
    if (isVbr_) {
        return Quotient(static_cast<double>(vbrFrames_) * FrameSamples(), SamplingRateFrequency());
    }
    const auto seconds = Quotient(static_cast<double>(audioBytes_), TableBitRate() * 1000.0);
    return seconds ? std::optional(*seconds * 8) : std::nullopt;
}

// `frame` begins behind the FF, so that a position is the offset in the frame.
void MpegHeader::ReadXing(const ByteView& frame)
{
    const bool isMono = ChannelMode() == Mono;
    const std::size_t sideSize = MPEGVersion() == Mpeg1 ? (isMono ? 17 : 32) : (isMono ? 9 : 17);
    const std::size_t mark = sideSize + 4;
    const bool isXing = HasMark(frame, mark, "xing");
    if (!isXing && !HasMark(frame, mark, "info")) {
        return;
    }
    isVbr_ = isXing; // "info" marks a constant bit rate
    enum Part { Frames = 1, Bytes = 2, Toc = 4, Quality = 8 };
    const int parts = frame.Byte(mark + 7).value_or(0);
    std::size_t position = mark + 8;
    const auto take = [&](Part part, std::size_t size) {
        const bool isThere = (parts & part) != 0;
        const std::size_t at = position;
        position += isThere ? size : 0;
        return isThere ? std::optional(at) : std::nullopt;
    };
    if (const auto at = take(Frames, 4)) {
        vbrFrames_ = Signed(frame, *at);
    }
    if (const auto at = take(Bytes, 4)) {
        vbrBytes_ = Signed(frame, *at);
    }
    if (const auto at = take(Toc, 100)) {
        const std::string_view toc = frame.Part(*at, 100).value_or(ByteView()).Bytes();
        vbrToc_ = QByteArray(toc.data(), static_cast<qsizetype>(toc.size()));
    }
    if (const auto at = take(Quality, 4)) {
        vbrQuality_ = Signed(frame, *at);
    }
    audioBytes_ -= static_cast<qint64>(position - mark);
}

void MpegHeader::ReadVbri(const ByteView& frame)
{
    if (!HasMark(frame, 36, "vbri")) {
        return;
    }
    const auto number = [&frame](std::size_t position) {
        return frame.UInt16(position, ByteOrder::BigEndian).value_or(0);
    };
    isVbr_ = true;
    vbrQuality_ = number(44);
    vbrBytes_ = Signed(frame, 46);
    vbrFrames_ = Signed(frame, 50);
    vbriTocEntries_ = number(54);
    vbriTocEntrySize_ = number(58);
    audioBytes_ -= 26 + qint64{vbriTocEntries_} * vbriTocEntrySize_;
}

} // namespace metadata
