// SPDX-License-Identifier: MIT
//
// clsEXIF: what a picture tells about itself in its Exif directories, as lines "TagName: value". It sees the
// first 4,096 bytes of a file and nothing else, so that a folder of large pictures is read quickly; behind
// the end of a shorter file it sees zero bytes. The main directory and the Exif directory are read, whatever
// kind of file they stand in.
//
// Formats: TIFF 6.0, section 2; Exif 2.2, section 4.6. Names keep what they have long made of these formats,
// which differs from them in places; the reader tells where.
#pragma once

#include "metadata/ByteView.h"
#include "platform/ProfileFile.h"

#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace metadata {

// One entry of a directory. A blank one stands for an entry that couldn't be read.
struct ExifTagRecord
{
    int TagNum = 0;
    int Format = 0;
    std::uint32_t Components = 0;
    double Value = 0; // the entry's four bytes as a number; of a fraction its value

    // Name and text are made when they are asked for, see TagName and Text of clsEXIF.
    bool hasName = false;
    bool hasText = false;
    std::uint32_t position = 0; // of the value's bytes in the head, counted from 1
    std::uint32_t size = 0;
};

class clsEXIF
{
public:
    enum class Status { Read = 0, NotExif = 1, ParseError = 2 };

    // Texts of values may be reworded by the file exif.ini in the program's folder, which needn't be there:
    // below "[TagName]" a key is a text and its value the wording, and the key "Format" a pattern in which
    // "@X" stands for the text.
    explicit clsEXIF(const QString& programFolder) : ini_(programFolder + QStringLiteral("exif.ini")) {}

    const QString& ImageFile() const { return imageFile_; }

    // Reads the file. One that is missing or empty leaves the records of the file before; so does one that
    // isn't Exif, which Status tells.
    void SetImageFile(const QString& path);

    Status ReadStatus() const { return status_; }

    // True for byte order "II".
    bool IntelByteAlignment() const { return order_ == ByteOrder::LittleEndian; }

    // The value of the first record of a tag, rounded, and its text; 0 and "Tag N not found." without one.
    // Nothing, and why, if the file wasn't Exif.
    std::optional<qint64> MetaInfo(int TagNum, QString& text) const;

    static QString GetTagName(int TagNum);

    // Fills the list with a line a record, blank ones included, and gives an empty text. Gives a description
    // if the file isn't Exif; the list then keeps what it holds.
    QString ListInfo(QStringList& list) const;

    const std::vector<ExifTagRecord>& Records() const { return records_; }
    QString TagName(const ExifTagRecord& record) const;
    QString Text(const ExifTagRecord& record) const;

    // What SetImageFile does with a file's head. Bytes behind its end read zero, up to 4,096.
    void ReadMetaInfo(std::string_view head);

private:
    static constexpr std::size_t HeadSize = 4'096;

    ByteView Head() const { return ByteView(std::string_view(head_.data(), head_.size())); }
    void Take(const std::array<char, HeadSize>& bytes, std::size_t size);
    qint32 ReadIfd(std::size_t base, qint32 offset, int searchedTag);
    bool ReadEntry(std::size_t base, std::size_t position, ExifTagRecord& record) const;
    double NumberOf(const ExifTagRecord& record) const;
    QString Reworded(const QString& tagName, const QString& text) const;

    QString imageFile_;
    Status status_ = Status::Read;
    ByteOrder order_ = ByteOrder::BigEndian;
    std::array<char, HeadSize> head_{}; // that the records were read from
    std::vector<ExifTagRecord> records_;
    platform::ProfileFile ini_;
};

} // namespace metadata
