// SPDX-License-Identifier: MIT
#include "fuzz/Support.h"
#include "fuzz/Targets.h"
#include "metadata/Id3v2.h"
#include "metadata/modUTF8.h"
#include "platform/TextFile.h"

namespace fuzz {

namespace {

enum Encoding : char { CodePage, Utf16WithMarks, Utf16BigEndian, Utf8 };

// The title of a tag of version 2.4 whose only frame has that encoding and these bytes.
QString TitleOf(Encoding encoding, const QByteArray& bytes)
{
    const QByteArray data = encoding + bytes;
    QByteArray frame("TIT2");
    for (const int shift : {21, 14, 7, 0}) {
        frame += static_cast<char>(data.size() >> shift & 0x7F);
    }
    metadata::Id3Tags tags;
    metadata::ReadId3v2Frames({.major = 4}, frame + QByteArray(2, '\0') + data, tags);
    return tags.Title;
}

// Texts that every encoding can tell come back.
void CheckRoundTrip(QByteArrayView bytes)
{
    QString text = QString::fromUtf8(bytes).remove(QChar::Null);
    text.removeIf([](QChar unit) { return unit.isSurrogate(); }); // four bytes are read as three
    Require(metadata::DecodeUtf8(text.toUtf8()) == text, "UTF-8 comes back");
    Require(TitleOf(Utf8, text.toUtf8()) == text, "a title in UTF-8 comes back");
    QByteArray utf16;
    for (const QChar unit : text) {
        utf16 += static_cast<char>(unit.unicode() >> 8);
        utf16 += static_cast<char>(unit.unicode() & 0xFF);
    }
    if (!utf16.contains('\xFE') && !utf16.contains('\xFF')) { // what might be a mark is taken for one
        Require(TitleOf(Utf16BigEndian, utf16) == text, "a title in UTF-16 comes back");
        Require(TitleOf(Utf16WithMarks, "\xFE\xFF" + utf16) == text, "a title behind a mark comes back");
    }
}

// Each three bytes are a step: which one, its position, and a text of one byte.
void CheckFrameList(QByteArrayView steps)
{
    metadata::MultiFrameData frames;
    for (qsizetype at = 0; at + 2 < steps.size(); at += 3) {
        const int before = frames.Count();
        const int position = static_cast<uchar>(steps[at + 1]) - 8; // in front of the list, too
        const bool isThere = position >= 1 && position <= before;
        const QByteArray text(1, steps[at + 2]);
        switch (steps[at] & 7) {
        case 0:
            frames.Remove(position);
            Require(frames.Count() == before - (isThere ? 1 : 0), "one is removed if it is there");
            break;
        case 1:
            frames.SetItem(position, text);
            Require(frames.Count() == before && (!isThere || frames.Item(position) == text), "one is set");
            break;
        case 2:
            frames.Clear();
            break;
        case 3:
            frames.Add(text, false);
            break;
        case 4:
            frames.Add(text, true, position);
            break;
        case 5:
            frames.Add(text, true, {}, position);
            break;
        default:
            frames.Add(text, true);
            break;
        }
        const int after = frames.Count();
        Require(after <= before + 1, "a step adds one item at most");
        for (int index = 1; index <= after && after > before; ++index) {
            if (frames.Item(index) == text) {
                frames.Add(text, true);
                frames.Add(text, true);
                Require(frames.Count() <= after + 1, "of equal texts the first is kept");
                break;
            }
        }
    }
}

} // namespace

void ReadTagText(QByteArrayView text)
{
    Require(metadata::DecodeUtf8(text).size() <= text.size(), "a byte is a character at most");
    Require(platform::FromWindows1252(text).size() == text.size(), "in the code page a byte is a character");
    for (const Encoding encoding : {CodePage, Utf16WithMarks, Utf16BigEndian, Utf8}) {
        Require(!TitleOf(encoding, text.toByteArray()).contains(QChar::Null),
                "a title ends at its first NUL");
    }
    CheckRoundTrip(text);
    CheckFrameList(text);
}

} // namespace fuzz
