// SPDX-License-Identifier: MIT
#include "metadata/Id3Frames.h"

#include "metadata/Id3v2.h"
#include "metadata/modUTF8.h"
#include "platform/TextFile.h"

#include <QHash>

#include <algorithm>

namespace metadata {

namespace {

using namespace std::string_view_literals;

enum Encoding { CodePage = 0, Utf16WithMarks = 1, Utf16BigEndian = 2, Utf8 = 3 };

// Frames whose text is a property, in both spellings.
struct TextFrame
{
    const char* id;
    const char* shortId; // of version 2.2, "" if it has none
    QString Id3Tags::*property;
};

constexpr TextFrame TextFrames[] = {
    {"COMM", "COM", &Id3Tags::Comments},
    {"TALB", "TAL", &Id3Tags::Album},
    {"TBPM", "TBP", &Id3Tags::BeatsPerMinute},
    {"TCOM", "TCM", &Id3Tags::Composer},
    {"TCOP", "TCR", &Id3Tags::Copyright},
    {"TENC", "TEN", &Id3Tags::EncodedBy},
    {"TEXT", "TXT", &Id3Tags::Lyricist},
    {"TIT2", "TT2", &Id3Tags::Title},
    {"TKEY", "TKE", &Id3Tags::InitialKey},
    {"TLAN", "TLA", &Id3Tags::Languages},
    {"TOAL", "TOT", &Id3Tags::OriginalAlbum},
    {"TOFN", "TOF", &Id3Tags::OriginalFileName},
    {"TOLY", "TOL", &Id3Tags::OriginalLyricist},
    {"TOPE", "TOA", &Id3Tags::OriginalArtist},
    {"TORY", "TOR", &Id3Tags::OriginalReleaseYear},
    {"TDOR", "", &Id3Tags::OriginalReleaseYear},
    {"TOWN", "", &Id3Tags::FileOwner},
    {"TPE1", "TP1", &Id3Tags::Artist},
    {"TPE2", "TP2", &Id3Tags::Band},
    {"TPE3", "TP3", &Id3Tags::Conductor},
    {"TPE4", "TP4", &Id3Tags::InterpretedBy},
    {"TPUB", "TPB", &Id3Tags::Publisher},
    {"TRSN", "", &Id3Tags::InternetRadioStationName},
    {"TRSO", "", &Id3Tags::InternetRadioStationOwner},
    {"TSRC", "TRC", &Id3Tags::ISRC},
    {"TYER", "TYE", &Id3Tags::Year},
    {"TDRC", "", &Id3Tags::Year},
    {"USLT", "ULT", &Id3Tags::Lyrics},
    {"WCOP", "WCP", &Id3Tags::CopyrightInfo},
    {"WOAF", "WAF", &Id3Tags::AudioURL},
    {"WOAS", "WAS", &Id3Tags::AudioSourceURL},
    {"WORS", "", &Id3Tags::InternetRadioURL},
    {"WPAY", "", &Id3Tags::PaymentURL},
    {"WPUB", "WPB", &Id3Tags::PublisherURL},
};

QString DecodeUtf16(QByteArrayView bytes, bool isBigEndian)
{
    QString text;
    for (qsizetype at = 0; at + 1 < bytes.size(); at += 2) {
        const auto first = static_cast<uchar>(bytes[at]);
        const auto second = static_cast<uchar>(bytes[at + 1]);
        text += QChar(static_cast<char16_t>(isBigEndian ? first << 8 | second : second << 8 | first));
    }
    return text;
}

// Bytes in front of the first byte order mark are characters of the code page; each part behind a mark is
// UTF-16 in its order up to the next mark, wherever one stands.
QString DecodeByMarks(QByteArrayView bytes)
{
    QString text;
    bool isMarked = false;
    bool isBigEndian = false;
    qsizetype start = 0;
    const auto take = [&](qsizetype end) {
        const QByteArrayView part = bytes.sliced(start, end - start);
        text += isMarked ? DecodeUtf16(part, isBigEndian) : platform::FromWindows1252(part);
    };
    for (qsizetype at = 0; at + 1 < bytes.size(); ++at) {
        const QByteArrayView pair = bytes.sliced(at, 2);
        if (pair == QByteArrayView("\xFF\xFE") || pair == QByteArrayView("\xFE\xFF")) {
            take(at);
            isMarked = true;
            isBigEndian = pair[0] == '\xFE';
            start = at + 2;
            ++at;
        }
    }
    take(bytes.size());
    return text;
}

bool IsCompressed(int major, const Id3Frame& frame)
{
    return (major == 3 && (frame.formatFlags & 128) != 0) || (major >= 4 && (frame.formatFlags & 8) != 0);
}

} // namespace

bool Id3FrameWalk::StartsWith(qsizetype at, std::string_view text) const
{
    return bytes_.sliced(at).startsWith(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
}

// Padding with the signature of another program: any tail of it, a version, and any tail of "(unicode)".
bool Id3FrameWalk::IsSignature() const
{
    if ("\0MP3ext V0123456789.(unicode)"sv.find(bytes_[at_]) == std::string_view::npos) {
        return false; // nearly always
    }
    std::string_view pattern = "\0\0\0MP3ext V"sv;
    while (!pattern.empty() && !StartsWith(at_, pattern)) {
        pattern.remove_prefix(1);
    }
    qsizetype behind = at_ + static_cast<qsizetype>(pattern.size());
    while (behind < bytes_.size() &&
           (bytes_[behind] == '.' || (bytes_[behind] >= '0' && bytes_[behind] <= '9'))) {
        ++behind;
    }
    if (StartsWith(behind, "(unicode)")) {
        return true;
    }
    for (std::string_view tail = "unicode)"; !tail.empty(); tail.remove_prefix(1)) {
        if (StartsWith(at_, tail)) {
            return true;
        }
    }
    return false;
}

std::optional<Id3Frame> Id3FrameWalk::Next()
{
    const qsizetype idSize = major_ < 3 ? 3 : 4;
    const qsizetype headerSize = major_ < 3 ? 6 : 10;
    if (at_ >= bytes_.size()) {
        return std::nullopt;
    }
    const auto id = QByteArray::fromRawData(bytes_.data() + at_, std::min(idSize, Left()));
    const bool isPadding = std::all_of(id.begin(), id.end(), [](char byte) { return byte == '\0'; });
    if (isPadding || IsSignature() || Left() < headerSize) {
        return std::nullopt;
    }
    const qint64 size = headerSize + ReadSize(bytes_.sliced(at_ + idSize, idSize), major_ >= 4);
    const QByteArrayView content = bytes_.sliced(at_, std::min<qint64>(size, Left()));
    const int flags = major_ < 3 ? 0 : static_cast<uchar>(content[9]);
    at_ += content.size();
    return Id3Frame{id, flags, content.sliced(headerSize), content, content.size() < size};
}

Id3FrameContent::Id3FrameContent(int major, const Id3Frame& frame)
{
    if (IsCompressed(major, frame)) {
        return;
    }
    bytes_ = frame.data;
    if (major >= 4 && (frame.formatFlags & 2) != 0) {
        undone_ = UndoUnsync(frame.data);
        bytes_ = undone_;
    }
    const int first = bytes_.isEmpty() ? 255 : static_cast<uchar>(bytes_[0]);
    if (first <= Utf16WithMarks || (first <= Utf8 && major >= 4)) {
        encoding_ = first;
        bytes_ = bytes_.sliced(1);
    }
}

bool IsComment(const QByteArray& id)
{
    return id == "COMM" || id == "COM" || id == "USLT" || id == "ULT";
}

Id3FrameText DecodeFrameText(int major, const Id3Frame& frame)
{
    if (IsCompressed(major, frame)) {
        return {};
    }
    const Id3FrameContent content(major, frame);
    const int encoding = content.Encoding().value_or(CodePage);
    QString text = encoding == Utf16WithMarks   ? DecodeByMarks(content.Bytes())
                   : encoding == Utf16BigEndian ? DecodeUtf16(content.Bytes(), true)
                   : encoding == Utf8           ? DecodeUtf8(content.Bytes())
                                                : platform::FromWindows1252(content.Bytes());
    if (IsComment(frame.id)) {
        text.remove(0, 3);
    }
    const bool hasDescription = !text.startsWith(QChar::Null);
    if (!hasDescription) {
        text.remove(0, 1);
    }
    const qsizetype zero = text.indexOf(QChar::Null);
    return {zero < 0 ? text : text.left(zero), hasDescription};
}

QString Id3Tags::*PropertyOfFrame(const QByteArray& id)
{
    static const QHash<QByteArray, QString Id3Tags::*> properties = [] {
        QHash<QByteArray, QString Id3Tags::*> byId;
        for (const TextFrame& frame : TextFrames) {
            byId.insert(frame.id, frame.property);
            byId.insert(frame.shortId, frame.property);
        }
        return byId;
    }();
    return properties.value(id, nullptr);
}

} // namespace metadata
