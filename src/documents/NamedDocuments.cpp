// SPDX-License-Identifier: MIT
#include "documents/NamedDocuments.h"

#include "model/Text.h"
#include "platform/FileSystem.h"
#include "platform/NameBytes.h"

#include <algorithm>
#include <filesystem>
#include <unistd.h>

namespace documents {

namespace {

namespace fs = std::filesystem;

fs::path NativePath(const QString& path)
{
    return platform::ToBytes(path).toStdString();
}

} // namespace

bool IsSameName(const QString& a, const QString& b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

NamedDocuments::NamedDocuments(const platform::ProgramFolder& programFolder, const QString& folder,
                               QString extension)
    : folder_(programFolder.PathOf(folder)), extension_(std::move(extension))
{}

platform::Status NamedDocuments::EnsureFolder() const
{
    return platform::CreateFolder(folder_);
}

QStringList NamedDocuments::Names() const
{
    QStringList names;
    std::error_code failure; // a folder that can't be read has no documents
    for (fs::directory_iterator entry(NativePath(folder_), failure), end; !failure && entry != end;
         entry.increment(failure)) {
        const QString file = platform::FromBytes(QByteArray::fromStdString(entry->path().filename()));
        std::error_code unknown; // a link that leads nowhere is no document
        if (file.endsWith(extension_.mid(1)) && entry->is_regular_file(unknown)) {
            const int length = model::Length(file) - static_cast<int>(extension_.size());
            names.append(length > 0 ? QStringList(model::Left(file, length)) : QStringList());
        }
    }
    return names;
}

std::optional<QString> NamedDocuments::Find(const QString& name) const
{
    const QStringList names = Names();
    if (names.contains(name)) {
        return name;
    }
    const auto found = std::find_if(names.begin(), names.end(),
                                    [&name](const QString& each) { return IsSameName(each, name); });
    return found == names.end() ? std::nullopt : std::optional(*found);
}

platform::Status NamedDocuments::Save(const QString& name, const QString& replaced, const Writer& write) const
{
    if (name.contains(platform::PathSeparator)) {
        return platform::Status::Failure(QStringLiteral("Path not found"));
    }
    if (platform::Status made = EnsureFolder(); !made.IsOk()) {
        return made;
    }
    if (platform::Status written = write(PathOf(name)); !written.IsOk()) {
        return written;
    }
    // Where the file system itself takes both names for one, the old file is the new one.
    std::error_code failure;
    if (!replaced.isEmpty() && replaced != name &&
        !fs::equivalent(NativePath(PathOf(replaced)), NativePath(PathOf(name)), failure)) {
        Delete(replaced);
    }
    return {};
}

void NamedDocuments::Delete(const QString& name) const
{
    static_cast<void>(::unlink(NativePath(PathOf(name)).c_str()));
}

} // namespace documents
