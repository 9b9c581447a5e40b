// SPDX-License-Identifier: MIT
#include "platform/ProgramFolder.h"

#include "platform/FileSystem.h"
#include "platform/NameBytes.h"

#include <QStandardPaths>

#include <array>
#include <climits>
#include <unistd.h>

namespace platform {

namespace {

// Folder of the running executable with its trailing separator; empty if the system doesn't tell.
QString ExecutableFolder()
{
    std::array<char, PATH_MAX> target{};
    const ssize_t length = ::readlink("/proc/self/exe", target.data(), target.size());
    const QString path = length < 0 ? QString() : FromBytes({target.data(), length});
    return path.left(path.lastIndexOf(PathSeparator) + 1);
}

} // namespace

ProgramFolder::ProgramFolder(QString path) : path_(std::move(path))
{
    if (!path_.endsWith(PathSeparator)) {
        path_ += PathSeparator;
    }
}

ProgramFolder ProgramFolder::OfThisProcess()
{
    const QString beside = ExecutableFolder();
    if (!beside.isEmpty() && FileSystem().FileExists(beside, QStringLiteral("Quillmark.ini"))) {
        return ProgramFolder(beside);
    }
    return ProgramFolder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
}

Status ProgramFolder::Ensure() const
{
    return CreateFolder(path_);
}

} // namespace platform
