// SPDX-License-Identifier: MIT
#include "actions/ValueEntries.h"

namespace actions {

const QStringList& ValueEntries()
{
    static const QStringList entries{QStringLiteral("$Counter$"),       QStringLiteral("$AlphaCounter$"),
                                     QStringLiteral("$Upper_Case$"),    QStringLiteral("$Lower_Case$"),
                                     QStringLiteral("$Invert_Case$"),   QStringLiteral("$current_date$"),
                                     QStringLiteral("$current_time$"),  QStringLiteral("$modified_date$"),
                                     QStringLiteral("$modified_time$"), QStringLiteral("$filesizeB$"),
                                     QStringLiteral("$filesizeKB$"),    QStringLiteral("$filesizeMB$"),
                                     QStringLiteral("$foldername$"),    QStringLiteral("$Random String$"),
                                     QStringLiteral("$Exif Data$"),     QStringLiteral("$MP3 Data$")};
    return entries;
}

const QStringList& ValueEntriesWithoutCase()
{
    static const QStringList entries = [] {
        QStringList list = ValueEntries();
        list.removeIf([](const QString& entry) { return entry.endsWith(QStringLiteral("_Case$")); });
        return list;
    }();
    return entries;
}

const QStringList& ExtensionEntries()
{
    static const QStringList entries{QStringLiteral("$Counter$"), QStringLiteral("$AlphaCounter$"),
                                     QStringLiteral("$Random String$"), QStringLiteral("$Exif Data$")};
    return entries;
}

const QStringList& ExifChangeEntries()
{
    static const QStringList entries = [] {
        QStringList list = ValueEntries();
        list.removeOne(QStringLiteral("$MP3 Data$"));
        list.replace(list.indexOf(QStringLiteral("$AlphaCounter$")), QStringLiteral("$Alphacounter$"));
        return list;
    }();
    return entries;
}

} // namespace actions
