// SPDX-License-Identifier: MIT
//
// The fuzz targets: a function for each reader of bytes that a person may hand over. Each takes any bytes at
// all, gives them to its reader as a file of that kind, and checks what must hold for whatever was read. The
// fuzzer runs them over inputs of its own (script/fuzz), the tests over those in fuzz/corpus/.
#pragma once

#include <QByteArrayView>

#include <span>

namespace fuzz {

// Each throws std::logic_error with a sentence where its reader breaks what must hold.
void ReadExif(QByteArrayView picture);         // a picture's head
void InspectPicture(QByteArrayView picture);   // a whole picture; also a segment of one
void ReadId3v2Tag(QByteArrayView tag);         // an ID3v2 tag; bytes that begin with none are frames of one
void ReadMp3(QByteArrayView file);             // an MP3 from its first byte to its last
void WriteMp3Tags(QByteArrayView file);        // the same; its tags are written, read back and taken out
void ReadLyrics3(QByteArrayView file);         // an MP3's end; also the fields of a block
void ReadTagText(QByteArrayView text);         // the text of a frame in each encoding; also steps of a list
void ReadRecipe(QByteArrayView document);      // a .rfg
void ReadDrop(QByteArrayView document);        // a .rnp
void ReadReplaceList(QByteArrayView document); // a .srl
void ReadFileList(QByteArrayView document);    // a .lst of the menu's form
void ReadManagedList(QByteArrayView document); // a .lst of the manager's form
void ReadSettings(QByteArrayView document);    // Quillmark.ini
void ReadBookmarks(QByteArrayView document);   // bookmarks.bks
void ReadProfile(QByteArrayView document);     // exif.ini

struct Target
{
    const char* name; // also that of its folder in fuzz/corpus/
    void (*read)(QByteArrayView);
};

std::span<const Target> AllTargets();

} // namespace fuzz
