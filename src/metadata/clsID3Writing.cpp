// SPDX-License-Identifier: MIT
//
// clsID3 as a writer: a file's tags by the object's properties, or none.
#include "metadata/Id3v1.h"
#include "metadata/Id3v2Writer.h"
#include "metadata/Lyrics3.h"
#include "metadata/clsID3.h"
#include "platform/FileRewrite.h"

namespace metadata {

namespace {

// What lies where in a file.
struct Layout
{
    std::optional<Id3v2Header> header;
    QByteArray frames;     // see FramesOf
    QByteArray lyrics;     // the fields of a Lyrics3 block of version 2
    qint64 audioStart = 1; // counted from 1
    qint64 audioEnd = 0;
};

Layout LayoutOf(const platform::FileBytes& file)
{
    Layout layout;
    layout.header = ReadId3v2Header(file.Read(0, Id3v2HeaderSize));
    if (layout.header) {
        const Id3v2Header& header = *layout.header;
        layout.frames = FramesOf(header, file.Read(Id3v2HeaderSize, header.size));
        layout.audioStart = Id3v2HeaderSize + 1 + header.size + (header.hasFooter ? Id3v2HeaderSize : 0);
    }
    const FileEnd end = ReadFileEnd(file);
    Id3Tags unused;
    const Lyrics3Found lyrics = ReadLyrics3(file, end.audio, end.audioEnd, unused);
    layout.lyrics = lyrics.block;
    layout.audioEnd = lyrics.version1 ? AudioEndBeforeVersion1(file, end.audioEnd) : lyrics.audioEnd;
    return layout;
}

// What wasn't read would be lost.
platform::Status Unreadable()
{
    return platform::Status::Failure(QStringLiteral("The file can't be read"));
}

} // namespace

platform::Status clsID3::UpdateID3Tags()
{
    const auto file = platform::FileBytes::Open(fileName_);
    if (!file) {
        return platform::Status::Failure(QStringLiteral("File not found"));
    }
    const Layout old = LayoutOf(*file);
    const auto tag = BuildId3v2(old.header, old.frames, *this);
    const auto lyrics = BuildLyrics3(old.lyrics, *this);
    if (file->HasFailed()) {
        return Unreadable();
    }
    if (!tag || !lyrics) {
        return platform::Status::Failure(QStringLiteral("The tag is too large"));
    }
    return platform::RewriteFile(fileName_, *tag, {old.audioStart - 1, old.audioEnd},
                                 *lyrics + BuildId3v1(*this), file->Times());
}

platform::Status clsID3::DeleteID3Tags()
{
    const QString path = fileName_;
    *this = clsID3();
    fileName_ = path;
    const auto file = platform::FileBytes::Open(path);
    if (!file) {
        return platform::Status::Failure(QStringLiteral("File not found"));
    }
    const Layout old = LayoutOf(*file);
    if (file->HasFailed()) {
        return Unreadable();
    }
    return platform::RewriteFile(path, {}, {old.audioStart - 1, old.audioEnd}, {}, file->Times());
}

} // namespace metadata
