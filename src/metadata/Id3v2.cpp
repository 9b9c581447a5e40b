// SPDX-License-Identifier: MIT
#include "metadata/Id3v2.h"

#include "metadata/modUTF8.h"
#include "platform/Conversions.h"
#include "platform/TextFile.h"

#include <QHash>

#include <algorithm>
#include <cmath>

namespace metadata {

namespace {

using namespace std::string_view_literals;

enum HeaderFlag { Unsynchronisation = 128, CompressedOrExtended = 64, Footer = 16 };
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

QHash<QByteArray, QString Id3Tags::*> PropertiesById()
{
    QHash<QByteArray, QString Id3Tags::*> properties;
    for (const TextFrame& frame : TextFrames) {
        properties.insert(frame.id, frame.property);
        properties.insert(frame.shortId, frame.property);
    }
    return properties;
}

bool IsOneOf(const QByteArray& id, std::initializer_list<const char*> ids)
{
    return std::any_of(ids.begin(), ids.end(), [&id](const char* each) { return id == each; });
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
        if (!isMarked) {
            text += platform::FromWindows1252(part);
        }
        for (qsizetype at = 0; isMarked && at + 1 < part.size(); at += 2) {
            const auto first = static_cast<uchar>(part[at]);
            const auto second = static_cast<uchar>(part[at + 1]);
            text += QChar(static_cast<char16_t>(isBigEndian ? first << 8 | second : second << 8 | first));
        }
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

QString DecodeBigEndian(QByteArrayView bytes)
{
    QByteArray marked("\xFE\xFF");
    marked.append(bytes.data(), bytes.size());
    return DecodeByMarks(marked);
}

// A frame whose data lie in the tag's buffer.
struct Frame
{
    QByteArray id;
    int formatFlags = 0; // the second of the two flag bytes
    QByteArrayView data;
};

class FrameReader
{
public:
    FrameReader(const Id3v2Header& header, QByteArrayView buffer, Id3Tags& tags)
        : major_(header.major), buffer_(buffer), tags_(tags)
    {}

    void Run()
    {
        const qsizetype idSize = major_ < 3 ? 3 : 4;
        const qsizetype headerSize = major_ < 3 ? 6 : 10;
        qsizetype at = 0;
        while (at < buffer_.size()) {
            const QByteArray id = buffer_.sliced(at, std::min(idSize, buffer_.size() - at)).toByteArray();
            const bool isPadding = std::all_of(id.begin(), id.end(), [](char byte) { return byte == '\0'; });
            if (isPadding || IsSignature(at) || buffer_.size() - at < headerSize) {
                break;
            }
            const qint64 size = ReadSize(buffer_.sliced(at + idSize, idSize), major_ >= 4);
            const qsizetype rest = buffer_.size() - at - headerSize;
            const QByteArrayView data = buffer_.sliced(at + headerSize, std::min<qint64>(size, rest));
            Apply({id, major_ < 3 ? 0 : static_cast<uchar>(buffer_[at + 9]), data});
            if (size > rest) {
                break; // the next frame would begin behind the end
            }
            at += headerSize + size;
        }
        Finish();
    }

private:
    bool StartsWith(qsizetype at, std::string_view text) const
    {
        return buffer_.sliced(at).startsWith(
            QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    }

    // Padding with the signature of another program: any tail of it, a version, and any tail of "(unicode)".
    bool IsSignature(qsizetype at) const
    {
        std::string_view pattern = "\0\0\0MP3ext V"sv;
        while (!pattern.empty() && !StartsWith(at, pattern)) {
            pattern.remove_prefix(1);
        }
        qsizetype behind = at + static_cast<qsizetype>(pattern.size());
        while (behind < buffer_.size() &&
               (buffer_[behind] == '.' || (buffer_[behind] >= '0' && buffer_[behind] <= '9'))) {
            ++behind;
        }
        if (StartsWith(behind, "(unicode)")) {
            return true;
        }
        for (std::string_view tail = "unicode)"; !tail.empty(); tail.remove_prefix(1)) {
            if (StartsWith(at, tail)) {
                return true;
            }
        }
        return false;
    }

    // The frame's data, whole.
    QByteArrayView DataOf(const Frame& frame)
    {
        if (major_ >= 4 && (frame.formatFlags & 2) != 0) {
            unsynchronised_ = UndoUnsync(frame.data);
            return unsynchronised_;
        }
        return frame.data;
    }

    bool IsCompressed(const Frame& frame) const
    {
        return (major_ == 3 && (frame.formatFlags & 128) != 0) ||
               (major_ >= 4 && (frame.formatFlags & 8) != 0);
    }

    bool HasEncoding(QByteArrayView data) const
    {
        const int first = data.isEmpty() ? 255 : static_cast<uchar>(data[0]);
        return first <= Utf16WithMarks || (first <= Utf8 && major_ >= 4);
    }

    // The text up to its first zero. `hasDescription` is told of comments and lyrics: where it is true, what
    // is given is the description.
    QString TextOf(const Frame& frame, bool hasLanguage, bool& hasDescription)
    {
        hasDescription = true;
        if (IsCompressed(frame)) {
            return {};
        }
        QByteArrayView data = DataOf(frame);
        int encoding = CodePage;
        if (HasEncoding(data)) {
            encoding = static_cast<uchar>(data[0]);
            data = data.sliced(1);
        }
        QString text = encoding == Utf16WithMarks   ? DecodeByMarks(data)
                       : encoding == Utf16BigEndian ? DecodeBigEndian(data)
                       : encoding == Utf8           ? DecodeUtf8(data)
                                                    : platform::FromWindows1252(data);
        if (hasLanguage) {
            text.remove(0, 3);
        }
        if (text.startsWith(QChar::Null)) {
            hasDescription = false;
            text.remove(0, 1);
        }
        const qsizetype zero = text.indexOf(QChar::Null);
        return zero < 0 ? text : text.left(zero);
    }

    void Apply(const Frame& frame)
    {
        static const QHash<QByteArray, QString Id3Tags::*> properties = PropertiesById();
        if (IsOneOf(frame.id, {"APIC", "PIC"})) {
            const QByteArrayView data = IsCompressed(frame) ? QByteArrayView() : DataOf(frame);
            tags_.AttachedPictures.Add(data.sliced(HasEncoding(data) ? 1 : 0).toByteArray(), true);
            return;
        }
        const bool isComment = IsOneOf(frame.id, {"COMM", "COM", "USLT", "ULT"});
        const auto property = properties.constFind(frame.id);
        bool hasDescription = true;
        if (property != properties.cend()) {
            const QString text = TextOf(frame, isComment, hasDescription);
            if (!isComment || !hasDescription) {
                // A date of version 2.4 counts up to its year.
                const qsizetype dash = IsOneOf(frame.id, {"TDRC", "TDOR"}) ? text.indexOf(u'-') : -1;
                tags_.*(*property) = text.left(dash < 0 ? text.size() : dash);
            }
        } else if (IsOneOf(frame.id, {"TCON", "TCO"})) {
            genre_ = TextOf(frame, false, hasDescription);
        } else if (IsOneOf(frame.id, {"TRCK", "TRK"})) {
            track_ = TextOf(frame, false, hasDescription);
        } else if (IsOneOf(frame.id, {"TPOS", "TPA"})) {
            disc_ = TextOf(frame, false, hasDescription);
        } else if (IsOneOf(frame.id, {"WCOM", "WCM"})) {
            tags_.CommercialInfo.Add(TextOf(frame, false, hasDescription).toUtf8(), false);
        } else if (IsOneOf(frame.id, {"WOAR", "WAR"})) {
            tags_.ArtistURL.Add(TextOf(frame, false, hasDescription).toUtf8(), false);
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

    void Finish()
    {
        SetGenre();
        SplitPosition(track_, tags_.TrackNumber, tags_.TracksTotal);
        SplitPosition(disc_, tags_.DiscNumber, tags_.DiscsTotal);
    }

    const int major_;
    const QByteArrayView buffer_;
    Id3Tags& tags_;
    QByteArray unsynchronised_; // the frame's data that are at work
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
        std::any_of(bytes.begin() + 6, bytes.begin() + 10, [](char size) { return size < 0; })) {
        return std::nullopt;
    }
    Id3v2Header header;
    header.major = byte(3);
    const int flags = byte(5);
    header.isUnsynchronised = (flags & Unsynchronisation) != 0;
    header.isCompressed = header.major < 3 && (flags & CompressedOrExtended) != 0;
    header.hasExtendedHeader = header.major >= 3 && (flags & CompressedOrExtended) != 0;
    header.hasFooter = header.major == 4 && (flags & Footer) != 0;
    header.size = header.isCompressed ? 0 : ReadSize(bytes.sliced(6, 4), true);
    return header;
}

void ReadId3v2Frames(const Id3v2Header& header, const QByteArray& body, Id3Tags& tags)
{
    if (header.isCompressed) {
        return;
    }
    const bool isUndone = header.isUnsynchronised && header.major < 4; // 2.4 does it frame by frame
    const QByteArray undone = isUndone ? UndoUnsync(body) : QByteArray();
    QByteArrayView buffer = isUndone ? QByteArrayView(undone) : QByteArrayView(body);
    if (header.hasExtendedHeader) {
        // The four bytes of its size come off in addition. In 2.4 the size counts them already, so the first
        // frame is misread and ends the loop.
        const qint64 size = ReadSize(buffer.first(std::min<qsizetype>(4, buffer.size())), header.major >= 4);
        buffer = buffer.sliced(std::min<qint64>(size + 4, buffer.size()));
    }
    FrameReader(header, buffer, tags).Run();
}

} // namespace metadata
