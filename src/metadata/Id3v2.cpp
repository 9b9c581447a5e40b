// SPDX-License-Identifier: MIT
#include "metadata/Id3v2.h"

#include "metadata/Id3Frames.h"
#include "platform/Conversions.h"

#include <algorithm>
#include <cmath>

namespace metadata {

namespace {

bool IsOneOf(const QByteArray& id, std::initializer_list<const char*> ids)
{
    return std::any_of(ids.begin(), ids.end(), [&id](const char* each) { return id == each; });
}

// Puts the frames' texts where they belong.
class FrameReader
{
public:
    FrameReader(int major, Id3Tags& tags) : major_(major), tags_(tags) {}

    void Run(QByteArrayView frames)
    {
        Id3FrameWalk walk(major_, frames);
        while (const auto frame = walk.Next()) {
            Apply(*frame);
        }
        SetGenre();
        SplitPosition(track_, tags_.TrackNumber, tags_.TracksTotal);
        SplitPosition(disc_, tags_.DiscNumber, tags_.DiscsTotal);
    }

private:
    void Apply(const Id3Frame& frame)
    {
        if (IsOneOf(frame.id, {"APIC", "PIC"})) {
            tags_.AttachedPictures.Add(Id3FrameContent(major_, frame).Bytes().toByteArray(), true);
            return;
        }
        const auto property = PropertyOfFrame(frame.id);
        if (!property &&
            !IsOneOf(frame.id, {"TCON", "TCO", "TRCK", "TRK", "TPOS", "TPA", "WCOM", "WCM", "WOAR", "WAR"})) {
            return;
        }
        const Id3FrameText decoded = DecodeFrameText(major_, frame);
        if (property) {
            if (!IsComment(frame.id) || !decoded.hasDescription) {
                // A date of version 2.4 counts up to its year.
                const qsizetype dash = IsOneOf(frame.id, {"TDRC", "TDOR"}) ? decoded.text.indexOf(u'-') : -1;
                tags_.*property = dash < 0 ? decoded.text : decoded.text.left(dash);
            }
        } else if (IsOneOf(frame.id, {"TCON", "TCO"})) {
            genre_ = decoded.text;
        } else if (IsOneOf(frame.id, {"TRCK", "TRK"})) {
            track_ = decoded.text;
        } else if (IsOneOf(frame.id, {"TPOS", "TPA"})) {
            disc_ = decoded.text;
        } else if (IsOneOf(frame.id, {"WCOM", "WCM"})) {
            tags_.CommercialInfo.Add(decoded.text.toUtf8(), false);
        } else if (IsOneOf(frame.id, {"WOAR", "WAR"})) {
            tags_.ArtistURL.Add(decoded.text.toUtf8(), false);
        }
    }

    // "3/12" gives both; what isn't a number is "0".
    static void SplitPosition(const QString& text, QString& number, QString& total)
    {
        const auto numeric = [](const QString& piece) {
            return piece.isEmpty() || platform::ToNumber(piece) ? piece : QStringLiteral("0");
        };
        const QStringList pieces = text.split(u'/');
        number = numeric(pieces.first());
        if (pieces.size() == 2) {
            total = numeric(pieces.last());
        }
    }

    // "(17)Rock" is a code and a text; anything that has no code in front is all text.
    void SetGenre()
    {
        const qsizetype end = genre_.startsWith(u'(') ? genre_.indexOf(u')') : -1;
        if (end < 0) {
            tags_.Genre = genre_;
            return;
        }
        const QString code = genre_.mid(1, end - 1);
        tags_.Genre = genre_.mid(end + 1);
        constexpr double greatest = 2147483647;
        const double number = platform::ToNumber(code).value_or(greatest + 1);
        if (std::fabs(number) <= greatest) {
            tags_.GenreID = static_cast<int>(std::nearbyint(number));
        } else if (code == QStringLiteral("CR")) {
            tags_.GenreID = -2;
        } else if (code == QStringLiteral("RX")) {
            tags_.GenreID = -1;
        }
    }

    const int major_;
    Id3Tags& tags_;
    QString genre_;
    QString track_;
    QString disc_;
};

} // namespace

qint64 ReadSize(QByteArrayView bytes, bool isBase128)
{
    qint64 size = 0;
    for (const char byte : bytes) {
        size = size * (isBase128 ? 128 : 256) + static_cast<uchar>(byte);
    }
    return size;
}

QByteArray UndoUnsync(QByteArrayView bytes)
{
    QByteArray result;
    result.reserve(bytes.size());
    for (qsizetype at = 0; at < bytes.size(); ++at) {
        result += bytes[at];
        if (bytes[at] == '\xFF' && at + 1 < bytes.size() && bytes[at + 1] == '\0') {
            ++at;
        }
    }
    return result;
}

std::optional<Id3v2Header> ReadId3v2Header(QByteArrayView bytes)
{
    const auto byte = [&bytes](qsizetype index) {
        return static_cast<int>(static_cast<uchar>(bytes[index]));
    };
    if (bytes.size() < Id3v2HeaderSize || !bytes.startsWith("ID3") || byte(3) == 255 || byte(4) == 255 ||
        std::any_of(bytes.begin() + 6, bytes.begin() + 10,
                    [](char size) { return static_cast<uchar>(size) >= 128; })) {
        return std::nullopt;
    }
    Id3v2Header header;
    header.major = byte(3);
    const int flags = byte(5);
    header.isUnsynchronised = (flags & UnsynchronisationFlag) != 0;
    header.isCompressed = header.major < 3 && (flags & CompressionFlag) != 0;
    header.hasExtendedHeader = header.major >= 3 && (flags & ExtendedHeaderFlag) != 0;
    header.hasFooter = header.major == 4 && (flags & FooterFlag) != 0;
    header.size = ReadSize(bytes.sliced(6, 4), true);
    return header;
}

QByteArray FramesOf(const Id3v2Header& header, const QByteArray& body)
{
    if (header.isCompressed) {
        return {};
    }
    const bool isUndone = header.isUnsynchronised && header.major < 4; // 2.4 does it frame by frame
    QByteArray frames = isUndone ? UndoUnsync(body) : body;
    if (header.hasExtendedHeader) {
        // The four bytes of its size come off in addition. In 2.4 the size counts them already, so the first
        // frame is misread and ends the loop.
        const qint64 size =
            ReadSize(QByteArrayView(frames).first(std::min<qsizetype>(4, frames.size())), header.major >= 4);
        frames.remove(0, std::min<qint64>(size + 4, frames.size()));
    }
    return frames;
}

void ReadId3v2Frames(const Id3v2Header& header, const QByteArray& body, Id3Tags& tags)
{
    const QByteArray frames = FramesOf(header, body);
    FrameReader(header.major, tags).Run(frames);
}

} // namespace metadata
