// SPDX-License-Identifier: MIT
#include "platform/FileCopy.h"
#include "platform/FileSystem.h"
#include "platform/FolderReader.h"
#include "platform/NameBytes.h"

#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

QString WithoutSeparator(QString path)
{
    while (path.size() > 1 && path.endsWith(PathSeparator)) {
        path.chop(1);
    }
    return path;
}

// The path without links and dots; empty if it isn't there.
QByteArray RealPath(const QByteArray& path)
{
    std::array<char, PATH_MAX> real{};
    return ::realpath(path.constData(), real.data()) ? QByteArray(real.data()) : QByteArray();
}

Status CopySubfolder(const QString& from, mode_t mode, const QString& to);

// Copies what is in `from` into the folder `to`, which is there. Stops at the first failure. What is neither
// file, folder nor link (a pipe, say) has nothing to copy and is passed over.
Status CopyEntries(const QString& from, const QString& to)
{
    FolderReader reader(from);
    Status copied = reader.ReadStatus();
    for (FolderEntry entry; copied.IsOk() && reader.Next(entry);) {
        const QString source = from + PathSeparator + entry.name;
        const QString target = to + PathSeparator + entry.name;
        struct stat info
        {};
        if (::lstat(ToBytes(source).constData(), &info) != 0) {
            copied = FailureOf(errno);
        } else if (S_ISLNK(info.st_mode)) {
            copied = CopyLink(ToBytes(source), ToBytes(target), TemporaryFile::Existing::Replace);
        } else if (S_ISREG(info.st_mode)) {
            copied = CopyFile(source, target);
        } else if (S_ISDIR(info.st_mode)) {
            copied = CopySubfolder(source, info.st_mode, target);
        }
    }
    return copied.IsOk() ? reader.ReadStatus() : copied;
}

// A new folder gets its permissions last: they may forbid to write into it.
Status CopySubfolder(const QString& from, mode_t mode, const QString& to)
{
    const QByteArray path = ToBytes(to);
    const bool isNew = ::mkdir(path.constData(), 0700) == 0;
    if (!isNew && errno != EEXIST) {
        return FailureOf(errno);
    }
    Status copied = CopyEntries(from, to);
    return copied.IsOk() && isNew && ::chmod(path.constData(), mode & 0777) != 0 ? FailureOf(errno) : copied;
}

// A new hidden folder beside `target`, removed with all that is in it unless it was put in the target's
// place.
class TemporaryFolder
{
public:
    explicit TemporaryFolder(const QByteArray& target) : path_(target)
    {
        // Not made of the target's name, which may be as long as a name can be.
        path_.truncate(path_.lastIndexOf('/') + 1);
        path_ += ".quillmark-" + QByteArray::number(::getpid()) + "-folder.tmp";
        isMade_ = ::mkdir(path_.constData(), 0700) == 0;
    }
    ~TemporaryFolder()
    {
        std::error_code unheard;
        if (isMade_) {
            std::filesystem::remove_all(path_.toStdString(), unheard);
        }
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    bool IsMade() const { return isMade_; }
    const QByteArray& Path() const { return path_; }
    void Keep() { isMade_ = false; }

private:
    QByteArray path_;
    bool isMade_ = false;
};

Status CopyToNewFolder(const QString& from, mode_t mode, const QByteArray& to)
{
    TemporaryFolder copy(to);
    if (!copy.IsMade()) {
        return FailureOf(errno);
    }
    if (Status copied = CopyEntries(from, FromBytes(copy.Path())); !copied.IsOk()) {
        return copied;
    }
    const int error =
        ::chmod(copy.Path().constData(), mode & 0777) != 0
            ? errno
            : RenameWithoutReplacing(AT_FDCWD, copy.Path().constData(), AT_FDCWD, to.constData(), true);
    if (error != 0) {
        return FailureOf(error);
    }
    copy.Keep();
    return {};
}

} // namespace

Status CopyFolder(const QString& from, const QString& to)
{
    const QString source = WithoutSeparator(from);
    const auto fromPath = ToPath(source);
    const auto toPath = ToPath(WithoutSeparator(to));
    struct stat info
    {};
    if (!fromPath || !toPath || ::stat(fromPath->constData(), &info) != 0 || !S_ISDIR(info.st_mode)) {
        return FailureOf(ENOENT);
    }
    const QByteArray real = RealPath(*fromPath) + '/';
    const QByteArray parent = RealPath(toPath->left(toPath->lastIndexOf('/') + 1) + '.') + '/';
    if (parent.startsWith(real) || RealPath(*toPath) + '/' == real) {
        return FailureOf(ENOENT);
    }
    struct stat present
    {};
    if (::stat(toPath->constData(), &present) != 0) {
        return CopyToNewFolder(source, info.st_mode, *toPath);
    }
    return S_ISDIR(present.st_mode) ? CopyEntries(source, FromBytes(*toPath)) : FailureOf(EEXIST);
}

} // namespace platform
