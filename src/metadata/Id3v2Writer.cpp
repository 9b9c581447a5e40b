// SPDX-License-Identifier: MIT
#include "metadata/Id3v2Writer.h"

#include "metadata/Id3Frames.h"
#include "platform/TextFile.h"

#include <QHash>
#include <QList>

#include <array>

namespace metadata {

namespace {

using Names = QList<QByteArray>;

// The frames that are written, in their order.
const Names& NamesOf(int major)
{
    static const Names shortNames{"COM", "PIC", "TAL", "TBP", "TCM", "TCO", "TCR", "TEN", "TXT",
                                  "TT2", "TKE", "TLA", "TOT", "TOF", "TOL", "TOA", "TOR", "TP1",
                                  "TP2", "TP3", "TP4", "TPA", "TPB", "TRK", "TRC", "TYE", "ULT",
                                  "WCM", "WCP", "WAF", "WAR", "WAS", "WPB"};
    static const Names names{"APIC", "COMM", "TALB", "TBPM", "TCOM", "TCON", "TCOP", "TENC", "TEXT", "TIT2",
                             "TKEY", "TLAN", "TOAL", "TOFN", "TOLY", "TOPE", "TORY", "TOWN", "TPE1", "TPE2",
                             "TPE3", "TPE4", "TPOS", "TPUB", "TRCK", "TRSN", "TRSO", "TSRC", "TYER", "USLT",
                             "WCOM", "WCOP", "WOAF", "WOAR", "WOAS", "WORS", "WPAY", "WPUB"};
    static const Names namesOf24 = [] {
        Names changed = names;
        changed.replace(changed.indexOf("TORY"), "TDOR");
        changed.replace(changed.indexOf("TYER"), "TDRC");
        return changed;
    }();
    return major < 3 ? shortNames : major < 4 ? names : namesOf24;
}

// Frames of which a tag may hold several.
struct RepeatingFrame
{
    const char* id;
    const char* shortId;
    MultiFrameData Id3Tags::*list;
};

constexpr std::array RepeatingFrames{
    RepeatingFrame{"WCOM", "WCM", &Id3Tags::CommercialInfo},
    RepeatingFrame{"WOAR", "WAR", &Id3Tags::ArtistURL},
    RepeatingFrame{"APIC", "PIC", &Id3Tags::AttachedPictures},
};

bool IsPicture(const QByteArray& id)
{
    return id == "APIC" || id == "PIC";
}

QString Joined(const QString& number, const QString& total)
{
    return number.isEmpty() || total.isEmpty() ? number : number + u'/' + total;
}

// "(17)Rock"; a code that says nothing is left out.
QString GenreText(const Id3Tags& tags)
{
    const QString code = tags.GenreID == -2   ? QStringLiteral("CR")
                         : tags.GenreID == -1 ? QStringLiteral("RX")
                                              : QString::number(tags.GenreID);
    const bool hasName = !tags.Genre.trimmed().isEmpty();
    if (hasName && (tags.GenreID == OtherGenre || tags.GenreID == UnknownGenre)) {
        return tags.Genre;
    }
    const QString name = tags.Genre.toLower();
    const bool saysMore = hasName && name != QStringLiteral("other") && name != QStringLiteral("unknown");
    return u'(' + code + u')' + (saysMore ? tags.Genre : QString());
}

// What the code page lacks is told as addresses tell it.
QByteArray LinkBytes(const QString& text)
{
    if (const auto bytes = platform::ToWindows1252(text)) {
        return *bytes;
    }
    return text.toUtf8().toPercentEncoding(":/?#[]@!$&'()*+,;=%");
}

// UTF-16 with its mark. Two bytes of neighbours may look like a mark, which readers would take for one; then
// the other order is better, if it has none.
QByteArray MarkedUtf16(const QString& text)
{
    QByteArray little("\xFF\xFE");
    QByteArray big("\xFE\xFF");
    for (const QChar unit : text) {
        const auto low = static_cast<char>(unit.unicode() & 0xFF);
        const auto high = static_cast<char>(unit.unicode() >> 8);
        (little += low) += high;
        (big += high) += low;
    }
    const auto looksMarked = [](const QByteArray& bytes) {
        return bytes.indexOf("\xFF\xFE", 1) >= 0 || bytes.indexOf("\xFE\xFF", 1) >= 0;
    };
    return looksMarked(little) && !looksMarked(big) ? big : little;
}

class FrameWriter
{
public:
    FrameWriter(int major, const Id3Tags& tags) : major_(major), tags_(tags), left_(NamesOf(major)) {}

    // The frames with their padding, or nothing if one is too large.
    std::optional<QByteArray> Run(QByteArrayView oldFrames)
    {
        NoteEncodingsOfPictures(oldFrames);
        Id3FrameWalk walk(major_, oldFrames);
        while (const auto frame = walk.Next()) {
            TakeOver(*frame);
        }
        const qsizetype padding = walk.Left();
        const Names left = left_;
        for (const QByteArray& id : left) {
            if (const auto repeating = IndexOfRepeating(id)) {
                while (counters_.at(*repeating) <= ListOf(*repeating).Count()) {
                    AppendEntry(id, *repeating);
                }
            } else {
                AppendValue(id);
            }
        }
        constexpr qsizetype usualPadding = 2'048;
        frames_.append(padding == 0 ? usualPadding : padding, '\0');
        return isTooLarge_ ? std::nullopt : std::optional(frames_);
    }

private:
    static std::optional<std::size_t> IndexOfRepeating(const QByteArray& id)
    {
        for (std::size_t index = 0; index < RepeatingFrames.size(); ++index) {
            if (id == RepeatingFrames.at(index).id || id == RepeatingFrames.at(index).shortId) {
                return index;
            }
        }
        return std::nullopt;
    }

    const MultiFrameData& ListOf(std::size_t repeating) const
    {
        return tags_.*RepeatingFrames.at(repeating).list;
    }

    // Puts what takes an old frame's place. One that has no value any more goes.
    void TakeOver(const Id3Frame& frame)
    {
        if (IsComment(frame.id)) {
            if (DecodeFrameText(major_, frame).hasDescription) {
                Keep(frame);
            } else if (left_.removeOne(frame.id)) {
                AppendValue(frame.id);
            }
        } else if (const auto repeating = IndexOfRepeating(frame.id)) {
            if (counters_.at(*repeating) <= ListOf(*repeating).Count()) {
                AppendEntry(frame.id, *repeating);
            }
        } else if (NamesOf(major_).contains(frame.id) || PropertyOfFrame(frame.id)) {
            AppendValue(frame.id);
            left_.removeOne(frame.id);
        } else {
            Keep(frame);
        }
    }

    // As it is; but one that the tag's end cut off is given the size that it has, or it would swallow what
    // comes behind it now.
    void Keep(const Id3Frame& frame)
    {
        QByteArray content = frame.content.toByteArray();
        if (frame.isCutOff) {
            const qsizetype idSize = frame.id.size();
            const auto size = SizeBytes(frame.data.size(), static_cast<int>(idSize), major_ >= 4);
            content.replace(idSize, idSize, size.value_or(QByteArray(idSize, '\0')));
        }
        frames_ += content;
    }

    void AppendEntry(const QByteArray& id, std::size_t repeating)
    {
        const QByteArray& entry = ListOf(repeating).Item(counters_.at(repeating)++);
        if (!IsPicture(id)) {
            AppendText(id, QString::fromUtf8(entry));
            return;
        }
        if (entry.isEmpty()) {
            return;
        }
        const auto encoding = encodings_.value(entry, 0);
        AppendFrame(id, encoding ? static_cast<char>(*encoding) + entry : entry);
    }

    void AppendValue(const QByteArray& id)
    {
        if (id == "TRCK" || id == "TRK") {
            AppendText(id, Joined(tags_.TrackNumber, tags_.TracksTotal));
        } else if (id == "TPOS" || id == "TPA") {
            AppendText(id, Joined(tags_.DiscNumber, tags_.DiscsTotal));
        } else if (id == "TCON" || id == "TCO") {
            AppendText(id, GenreText(tags_));
        } else {
            AppendText(id, tags_.*PropertyOfFrame(id));
        }
    }

    // An empty text has no frame.
    void AppendText(const QByteArray& id, const QString& text)
    {
        if (text.isEmpty()) {
            return;
        }
        if (id.startsWith('W')) { // a link has no encoding
            AppendFrame(id, LinkBytes(text));
            return;
        }
        const QByteArray language = IsComment(id) ? "eng" : "";
        if (const auto bytes = platform::ToWindows1252(text)) {
            AppendFrame(id, '\0' + language + QByteArray(language.isEmpty() ? 0 : 1, '\0') + *bytes);
            return;
        }
        const QByteArray utf16 = MarkedUtf16(text);
        const QByteArray noDescription =
            language.isEmpty() ? QByteArray() : utf16.first(2) + QByteArray(2, '\0');
        AppendFrame(id, '\1' + language + noDescription + utf16);
    }

    void AppendFrame(const QByteArray& id, const QByteArray& data)
    {
        const auto size = SizeBytes(data.size(), static_cast<int>(id.size()), major_ >= 4);
        isTooLarge_ = isTooLarge_ || !size;
        frames_ += id + size.value_or(QByteArray()) + QByteArray(major_ < 3 ? 0 : 2, '\0') + data;
    }

    // A picture's description keeps its encoding, or the picture behind it couldn't be found.
    void NoteEncodingsOfPictures(QByteArrayView oldFrames)
    {
        Id3FrameWalk walk(major_, oldFrames);
        while (const auto frame = walk.Next()) {
            if (IsPicture(frame->id)) {
                const Id3FrameContent content(major_, *frame);
                const QByteArray entry = content.Bytes().toByteArray();
                if (!encodings_.contains(entry)) { // only the first of equal ones is kept
                    encodings_.insert(entry, content.Encoding());
                }
            }
        }
    }

    const int major_;
    const Id3Tags& tags_;
    Names left_;                                                // not written yet
    std::array<int, RepeatingFrames.size()> counters_{1, 1, 1}; // the next entries, counted from 1
    QHash<QByteArray, std::optional<int>> encodings_;           // by a picture's data
    QByteArray frames_;
    bool isTooLarge_ = false;
};

} // namespace

std::optional<QByteArray> SizeBytes(qint64 size, int count, bool isBase128)
{
    const int base = isBase128 ? 128 : 256;
    QByteArray bytes;
    for (; count > 0; --count, size /= base) {
        bytes.prepend(static_cast<char>(size % base));
    }
    return size == 0 ? std::optional(bytes) : std::nullopt;
}

std::optional<QByteArray> BuildId3v2(const std::optional<Id3v2Header>& old, QByteArrayView frames,
                                     const Id3Tags& tags)
{
    const Id3v2Header header = old.value_or(Id3v2Header{.major = 3});
    const auto newFrames = FrameWriter(header.major, tags).Run(frames);
    const auto size = newFrames ? SizeBytes(newFrames->size(), 4, true) : std::nullopt;
    if (!size) {
        return std::nullopt;
    }
    // The flag of an extended header stays, though that is gone.
    const int flags =
        (header.hasExtendedHeader ? ExtendedHeaderFlag : 0) | (header.hasFooter ? FooterFlag : 0);
    const QByteArray about =
        static_cast<char>(header.major) + QByteArray(1, '\0') + static_cast<char>(flags) + *size;
    // A footer that is announced is there, or readers would take audio for it.
    return "ID3" + about + *newFrames + (header.hasFooter ? "3DI" + about : QByteArray());
}

} // namespace metadata
