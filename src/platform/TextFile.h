// SPDX-License-Identifier: MIT
//
// The system's text files: lines of text, UTF-8, each ended by carriage return and line feed. Paths are
// complete and converted as NameBytes.h tells; a line may hold file names that are no valid UTF-8, and keeps
// their bytes.
#pragma once

#include "platform/Descriptor.h"
#include "platform/Result.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace platform {

// How the bytes of a file that is no valid UTF-8 are read, unless it begins with a byte order mark: then its
// stray bytes are those of file names.
enum class Fallback {
    Windows1252, // documents: files written by older programs
    NameBytes,   // logs: the bytes are those of file names
};

// Text of bytes in the code page Windows-1252; its five undefined bytes keep their value.
QString FromWindows1252(QByteArrayView bytes);

// The bytes of a text in that code page, or nothing if it lacks one of the characters; or with a "?" in the
// place of each that it lacks.
std::optional<QByteArray> ToWindows1252(const QString& text);
QByteArray ToWindows1252OrMark(const QString& text);

// Reads all lines of a text file. Takes CRLF and LF (and a mix); the last line may lack its end; a byte order
// mark is dropped. An empty file gives no lines. Empty optional if the file can't be read, is no plain file,
// or has more than `maximumSize` bytes: a person may hand over any file as a document.
inline constexpr qint64 LargestText = 256 * 1024 * 1024; // more than any text of ours
std::optional<QStringList> ReadLines(const QString& path, Fallback fallback = Fallback::Windows1252,
                                     qint64 maximumSize = LargestText);

// Writes a document whole or not at all: into a temporary file beside `path`, which then replaces it.
// Where a text holds bytes of a name that is no valid UTF-8, a byte order mark says how to read them back;
// also where the first text begins with a mark of its own.
// Whatever fails (no folder, no permission, a full disk), an existing file at `path` stays as it was. A
// read-only file and anything but a plain file are refused; a link is written through, one that leads nowhere
// is replaced.
Status WriteDocument(const QString& path, const QStringList& lines);

// A text file that grows line by line, for run logs. What was written before a failure stays written.
class TextWriter
{
public:
    TextWriter() = default;
    ~TextWriter(); // writes out what is buffered
    TextWriter(const TextWriter&) = delete;
    TextWriter& operator=(const TextWriter&) = delete;

    // Creates the file or empties an existing one. On failure an existing file keeps its content as far as
    // the system allows, and every WriteLine is dropped.
    Status Create(const QString& path);

    // Appends a line and its end. Buffered; failures are kept for Close, and what follows one is dropped.
    void WriteLine(const QString& line);

    // Writes out the rest and closes. The first failure since Create, if any.
    Status Close();

private:
    void Flush();

    Descriptor file_;
    QByteArray buffer_;
    Status firstFailure_;
};

} // namespace platform
