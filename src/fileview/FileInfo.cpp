// SPDX-License-Identifier: MIT
#include "fileview/FileInfo.h"

#include "model/GetFName.h"
#include "platform/Conversions.h"
#include "platform/ProgramFile.h"

#include <QLocale>

#include <algorithm>
#include <array>

namespace fileview {

namespace {

struct ProgramNames
{
    QString english; // compared with the type text in lower case
    QString korean;  // the bytes of the Korean name, one character a byte; compared as it stands
};

const ProgramNames Program{QStringLiteral("application"), QStringLiteral("ÀÀ¿ë ÇÁ·Î±×·¥")};
const ProgramNames Shortcut{QStringLiteral("shortcut"), QStringLiteral("¹Ù·Î °¡±â")};

const QString DosIconKey = QStringLiteral("DOSExeIcon");

bool Is(const ProgramNames& names, const QString& typeText)
{
    return typeText.toLower() == names.english || typeText == names.korean;
}

QString TwoDigits(int number)
{
    return QString::number(number).rightJustified(2, u'0');
}

} // namespace

QString SizeTextOf(qint64 size)
{
    constexpr qint64 low = 0xFFFFFFFF;
    const qint64 words = (size & low) + (size >> 32U);
    static const QLocale thousandsByComma(QLocale::English, QLocale::UnitedStates);
    return thousandsByComma.toString(words / 1024 + 1) + QStringLiteral("KB");
}

QString DateTextOf(qint64 secondsSinceEpoch)
{
    constexpr qint64 startOf1601 = -11'644'473'600;
    if (secondsSinceEpoch < startOf1601) {
        return {};
    }
    const QDateTime moment = platform::LocalMoment(secondsSinceEpoch);
    const QDate date = moment.date();
    const QTime time = moment.time();
    const int hour = time.hour() > 12 ? time.hour() - 12 : time.hour();
    return QString::number(date.year()) + u'/' + QString::number(date.month()) + u'/' +
           QString::number(date.day()) + u' ' + QString::number(hour) + u':' + TwoDigits(time.minute()) +
           u':' + TwoDigits(time.second());
}

QString SizeTextOf(const model::FileRow& row)
{
    if (row.written && !row.written->size.isNull()) {
        return row.written->size;
    }
    return row.modified && row.Type != model::FileFolder ? SizeTextOf(row.size) : QString();
}

QString DateTextOf(const model::FileRow& row)
{
    if (row.written && !row.written->date.isNull()) {
        return row.written->date;
    }
    return row.modified ? DateTextOf(*row.modified) : QString();
}

bool IsProgramType(const QString& typeText)
{
    return Is(Program, typeText) || Is(Shortcut, typeText);
}

QString IconKeyOf(const model::FileRow& row)
{
    if (!IsProgramType(row.Type)) {
        return row.Type;
    }
    const bool hasOwnIcon = Is(Shortcut, row.Type) || platform::WindowsVersionOf(row.Path + row.Text) >= 1;
    return hasOwnIcon ? row.Text : DosIconKey;
}

FileInfoRecord RecordOf(const model::FileRow& row)
{
    FileInfoRecord record{row.Path + row.Text, SizeTextOf(row), row.Type, DateTextOf(row), IconKeyOf(row)};
    record.IsProgram = IsProgramType(row.Type);
    record.IsDosProgram = record.IsProgram && record.IconKey == DosIconKey;
    return record;
}

} // namespace fileview
