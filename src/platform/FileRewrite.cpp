// SPDX-License-Identifier: MIT
#include "platform/FileRewrite.h"

#include "platform/Descriptor.h"
#include "platform/FileCopy.h"
#include "platform/NameBytes.h"

#include <QDateTime>
#include <QDir>

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

// Copies bytes, both files from where they stand. False with errno set.
bool CopyBytes(const Descriptor& from, const Descriptor& to, qint64 count)
{
    std::array<char, 20'480> piece{};
    while (count > 0) {
        const auto wanted = static_cast<std::size_t>(std::min<qint64>(count, piece.size()));
        const ssize_t read = ::read(from.Number(), piece.data(), wanted);
        if (read == 0 || (read < 0 && errno != EINTR)) {
            errno = read == 0 ? EIO : errno; // it has become shorter
            return false;
        }
        if (read > 0 && !WriteAll(to, QByteArrayView(piece.data(), read))) {
            return false;
        }
        count -= std::max<ssize_t>(0, read);
    }
    return true;
}

// A file of its own, that goes unless it is kept.
class Copy
{
public:
    ~Copy()
    {
        if (file_.IsOpen() && !isKept_) {
            ::unlink(path_.constData());
        }
    }

    // 0 or an errno value.
    int Create()
    {
        const QByteArray variable = qgetenv("TEMP");
        const QByteArray folder = variable.isEmpty() ? ToBytes(QDir::tempPath()) : variable;
        QDateTime time = QDateTime::currentDateTime();
        for (int attempt = 0; attempt < 60; ++attempt, time = time.addSecs(1)) {
            path_ = folder + "/mp3" + time.toString(QStringLiteral("yyyyMMddHHmmss")).toLatin1() + ".mp3";
            file_ = Descriptor(::open(path_.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
            if (file_.IsOpen()) {
                return 0;
            }
            if (errno != EEXIST) {
                break;
            }
        }
        return errno;
    }

    const Descriptor& File() const { return file_; }

    // True if the file and its name are on the disk.
    bool Sync() const
    {
        SyncFolderOf(path_);
        return ::fsync(file_.Number()) == 0;
    }

    QString Path() const { return FromBytes(path_); }
    void Keep() { isKept_ = true; }

private:
    QByteArray path_;
    Descriptor file_;
    bool isKept_ = false;
};

bool Seek(const Descriptor& file, qint64 offset)
{
    return ::lseek(file.Number(), offset, SEEK_SET) == offset;
}

} // namespace

Status RewriteFile(const QString& path, const QByteArray& head, FileRange kept, const QByteArray& tail,
                   const FileTimes& times)
{
    const auto bytes = ToPath(path);
    const Descriptor file(bytes ? ::open(bytes->constData(), O_RDWR | O_CLOEXEC | O_NONBLOCK) : -1);
    if (!file.IsOpen()) {
        return bytes ? FailureAt(*bytes, errno) : FailureOf(ENOENT);
    }
    struct stat info
    {};
    if (::fstat(file.Number(), &info) != 0 || !S_ISREG(info.st_mode)) {
        return Status::Failure(QStringLiteral("This is no plain file"));
    }
    const qint64 end = std::min<qint64>(kept.end, info.st_size);
    const qint64 begin = std::clamp<qint64>(kept.begin, 0, std::max<qint64>(0, end));

    Copy copy;
    if (const int error = copy.Create(); error != 0) {
        return Status::Failure(FailureOf(error).Description() + QStringLiteral(": ") + copy.Path());
    }
    const std::array both{times.accessed, times.changed};
    if (::futimens(file.Number(), both.data()) != 0) {
        return FailureOf(errno); // only its owner may, and not everybody who may write
    }
    const bool isSafe = WriteAll(copy.File(), head) && Seek(file, begin) &&
                        CopyBytes(file, copy.File(), end - begin) && WriteAll(copy.File(), tail) &&
                        copy.Sync() && Seek(copy.File(), 0) && Seek(file, 0);
    if (!isSafe) {
        return FailureOf(errno);
    }
    const bool isFilled = ::ftruncate(file.Number(), 0) == 0 &&
                          CopyBytes(copy.File(), file, head.size() + (end - begin) + tail.size()) &&
                          ::fsync(file.Number()) == 0;
    if (!isFilled) {
        const int error = errno;
        copy.Keep();
        return Status::Failure(FailureOf(error).Description() +
                               QStringLiteral("; the whole file is kept as ") + copy.Path());
    }
    return ::futimens(file.Number(), both.data()) == 0 ? Status() : FailureOf(errno);
}

} // namespace platform
