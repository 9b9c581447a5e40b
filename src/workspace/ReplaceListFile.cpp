// SPDX-License-Identifier: MIT
#include "workspace/ReplaceListFile.h"

#include "platform/TextFile.h"
#include "workspace/ReplaceGrid.h"

#include <QStringList>

namespace workspace {
namespace {

const QString Header = QStringLiteral("Tarnwick Strings Replace List");

// Bytes. Five hundred rows of long texts have less; what is larger was handed over by mistake.
constexpr qint64 LargestList = 16 * 1024 * 1024;

constexpr qsizetype FirstRowLine = 2; // 0-based, behind the header and the box
constexpr qsizetype LinesOfARow = 3;

} // namespace

platform::Status SaveReplaceList(const ReplaceListFile& list, const QString& path)
{
    QStringList lines{Header, QString::number(list.matchCaseAll ? 1 : 0)};
    for (const actions::ReplaceRow& row : list.rows) {
        if (!row.from.isEmpty()) {
            lines << row.matchFlag << row.from << row.to;
        }
    }
    return platform::WriteDocument(path, lines);
}

platform::Status LoadReplaceList(ReplaceListFile& list, const QString& path)
{
    const auto lines = platform::ReadLines(path, platform::Fallback::Windows1252, LargestList);
    if (!lines || lines->isEmpty() || lines->constFirst() != Header) {
        return platform::Status::Failure(QStringLiteral("Invalid File"));
    }
    list.matchCaseAll = lines->value(1).trimmed() == QLatin1String("1");
    list.rows.clear();
    for (qsizetype at = FirstRowLine; at < lines->size() && list.rows.size() < ReplaceGrid::RowCount;
         at += LinesOfARow) {
        list.rows.push_back({lines->value(at), lines->value(at + 1), lines->value(at + 2)});
    }
    return {};
}

} // namespace workspace
