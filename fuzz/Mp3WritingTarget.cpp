// SPDX-License-Identifier: MIT
#include "fuzz/Support.h"
#include "fuzz/Targets.h"
#include "metadata/Id3v2.h"
#include "metadata/clsID3.h"
#include "platform/TextFile.h"

namespace fuzz {

namespace {

// What comes back as it was written, if the code page has it: in other texts a mark may be found.
constexpr QString metadata::Id3Tags::*PlainTexts[] = {
    &metadata::Id3Tags::Title,    &metadata::Id3Tags::Artist,      &metadata::Id3Tags::Album,
    &metadata::Id3Tags::Comments, &metadata::Id3Tags::TrackNumber, &metadata::Id3Tags::Lyrics,
    &metadata::Id3Tags::Composer, &metadata::Id3Tags::ISRC,        &metadata::Id3Tags::CopyrightInfo,
};

} // namespace

void WriteMp3Tags(QByteArrayView file)
{
    qputenv("TEMP", Folder().chopped(1).toUtf8());
    const QString path = WriteFile("written.mp3", file);
    metadata::clsID3 tags;
    tags.SetFileName(path);
    tags.Title += u'!';
    Require(tags.UpdateID3Tags());
    const QByteArray written = ContentOf(path);
    const auto header = metadata::ReadId3v2Header(written);
    Require(header && metadata::Id3v2HeaderSize + header->size <= written.size(), "there is a whole tag");
    metadata::clsID3 again;
    again.SetFileName(path);
    for (const auto text : PlainTexts) {
        const QString& wanted = tags.*text;
        // A text with a zero ends there; what is empty may come from an older tag in front of the new one; a
        // link that begins with a control character seems to begin with an encoding.
        const bool isLink = text == &metadata::Id3Tags::CopyrightInfo;
        const bool isPlain = !wanted.isEmpty() && platform::ToWindows1252(wanted) &&
                             !wanted.contains(QChar::Null) && (!isLink || wanted.front() >= u' ');
        Require(!isPlain || header->hasExtendedHeader || again.*text == wanted, "a text comes back");
    }
    const int pictures = tags.AttachedPictures.Count(); // one without bytes has no frame
    Require(header->hasExtendedHeader || again.AttachedPictures.Count() >= pictures - 1,
            "all pictures come back");
    Require(again.DeleteID3Tags());
    Require(again.Title.isEmpty() && ContentOf(path).size() < written.size(), "the tags are gone");
}

} // namespace fuzz
