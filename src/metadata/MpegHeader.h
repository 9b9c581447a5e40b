// SPDX-License-Identifier: MIT
//
// MpegHeader: the first frame of MPEG audio, with a Xing, Info or VBRI header in it, and what follows from
// them. Source: ISO 11172-3, section 2.4.1.3; ISO 13818-3; the published Xing and VBRI headers.
#pragma once

#include "metadata/ByteView.h"
#include "platform/FileBytes.h"

#include <QByteArray>

#include <array>
#include <optional>

namespace metadata {

class MpegHeader
{
public:
    // All zero: no audio was looked for.
    MpegHeader() = default;

    // Looks for the first frame between two positions of the file, counted from 1, `end` being that of the
    // last audio byte. Reads 20,480 bytes at a time. Without a frame FirstFramePos() is 0.
    MpegHeader(const platform::FileBytes& file, qint64 start, qint64 end);

    // Position of the byte behind the frame's four, counted from 1, and the bytes of audio from there on.
    qint64 FirstFramePos() const { return firstFramePos_; }
    qint64 AudioBytes() const { return audioBytes_; }

    int Layer() const;       // the raw code: 0 reserved, 1 Layer III, 2 Layer II, 3 Layer I
    int Padding() const;     // bytes
    int MPEGVersion() const; // 0 for MPEG 2.5, 1 reserved, 2 for MPEG 1, 3 for MPEG 2
    int ChannelMode() const; // 0 stereo, 1 joint stereo, 2 dual channel, 3 mono
    int Encoding() const { return isVbr_ ? 1 : 0; } // 1 for a variable bit rate

    int SamplingRateFrequency() const; // hertz, -1 when reserved
    int FrameSamples() const;

    // Bits a second, bytes and seconds. Nothing where they would be divided by 0.
    std::optional<double> BitRate() const;
    std::optional<double> FrameSize() const;
    std::optional<double> Length() const;

    qint32 VbrFrames() const { return vbrFrames_; }
    qint32 VbrBytes() const { return vbrBytes_; }
    qint32 VbrQuality() const { return vbrQuality_; }
    const QByteArray& VbrToc() const { return vbrToc_; }
    int VbriTocEntries() const { return vbriTocEntries_; }
    int VbriTocEntrySize() const { return vbriTocEntrySize_; } // bytes

private:
    bool IsAcceptable() const;
    int TableBitRate() const; // kilobits a second, -1 for the reserved index
    void ReadXing(const ByteView& frame);
    void ReadVbri(const ByteView& frame);

    std::array<std::uint8_t, 3> headerBytes_{}; // behind the byte FF
    qint64 firstFramePos_ = 0;
    qint64 audioBytes_ = 0;
    bool isVbr_ = false;
    qint32 vbrFrames_ = 0;
    qint32 vbrBytes_ = 0;
    qint32 vbrQuality_ = 0;
    QByteArray vbrToc_;
    int vbriTocEntries_ = 0;
    int vbriTocEntrySize_ = 0;
};

} // namespace metadata
