// SPDX-License-Identifier: MIT
//
// What the file list tells about a file: the texts of its columns and the key of its icon.
#pragma once

#include "model/FileRow.h"

#include <QString>

namespace fileview {

// All that one file yields. Everything but `FullName` is empty for a file that isn't there.
struct FileInfoRecord
{
    QString FullName;
    QString SizeText;
    QString TypeText;
    QString DateText;
    QString IconKey; // files with the same key share one icon
    bool IsProgram = false;
    bool IsDosProgram = false;
};

// Size in bytes as "1,234KB": half a kilobyte more than there is, rounded, so that an empty file has 1KB and
// 1,024 bytes have 2KB. Past 4 GiB only what the two halves of the number add up to is counted.
QString SizeTextOf(qint64 size);

// Local time as "2024/3/7 1:05:09": no leading zeros in date and hour, hours above 12 less 12, and nothing
// that tells the halves of the day apart. Empty for a time before 1601, which such dates never hold.
QString DateTextOf(qint64 secondsSinceEpoch);

// The columns' texts of a row: what was written over them, else as the file was found. A folder has no size.
QString SizeTextOf(const model::FileRow& row);
QString DateTextOf(const model::FileRow& row);

// The type text, but for programs: those that bring their own icon have their file's name, and all DOS
// programs share one key.
QString IconKeyOf(const model::FileRow& row);

// True for the type texts of programs and shortcuts, in English and Korean.
bool IsProgramType(const QString& typeText);

// The row's record.
FileInfoRecord RecordOf(const model::FileRow& row);

} // namespace fileview
