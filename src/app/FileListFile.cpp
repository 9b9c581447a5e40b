// SPDX-License-Identifier: MIT
#include "app/FileListFile.h"

#include "platform/TextFile.h"

namespace app {

namespace {

const QString FirstLine = QStringLiteral("Tarnwick File List");

// Adds the lines of each checked row to those that are there, and writes them.
template<class LinesOf>
platform::Status Save(const QString& path, const fileview::FileList& rows, QStringList lines, LinesOf linesOf)
{
    int leftOut = 0;
    for (int row = 1; row <= rows.Count(); ++row) {
        const model::FileRow& file = rows.Item(row);
        if (!rows.Checked(row)) {
            continue;
        }
        if (file.Path.contains(u'\n') || file.Text.contains(u'\n')) {
            ++leftOut;
        } else {
            lines << linesOf(file);
        }
    }
    platform::Status status = platform::WriteDocument(path, lines);
    if (status.IsOk() && leftOut > 0) {
        status = platform::Status::Failure(
            QStringLiteral("Left out, as their names have a line break: %1 file(s)").arg(leftOut));
    }
    return status;
}

} // namespace

platform::Status SaveFileList(const QString& path, const fileview::FileList& rows)
{
    return Save(path, rows, {FirstLine}, [](const model::FileRow& file) {
        return QStringList{file.Path, file.Text};
    });
}

platform::Status SaveManagedList(const QString& path, const fileview::FileList& rows)
{
    return Save(path, rows, {}, [](const model::FileRow& file) { return file.Path + file.Text; });
}

std::optional<std::vector<ListedFile>> LoadFileList(const QString& path)
{
    const auto lines = platform::ReadLines(path);
    if (!lines || lines->value(0) != FirstLine) {
        return std::nullopt;
    }
    std::vector<ListedFile> files;
    for (qsizetype at = 1; at + 1 < lines->size(); at += 2) {
        files.push_back({lines->at(at), lines->at(at + 1)});
    }
    return files;
}

std::optional<std::vector<ListedFile>> LoadManagedList(const QString& path)
{
    const auto lines = platform::ReadLines(path);
    if (!lines) {
        return std::nullopt;
    }
    std::vector<ListedFile> files;
    for (const QString& line : *lines) {
        const qsizetype nameAt = line.lastIndexOf(platform::PathSeparator) + 1;
        if (!line.isEmpty()) {
            files.push_back({line.left(nameAt), line.mid(nameAt)});
        }
    }
    return files;
}

} // namespace app
