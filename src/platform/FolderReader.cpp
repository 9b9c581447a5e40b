// SPDX-License-Identifier: MIT
#include "platform/FolderReader.h"

#include "platform/Descriptor.h"
#include "platform/NameBytes.h"

#include <cerrno>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>

namespace platform {

FolderReader::FolderReader(const QString& folder)
{
    const auto path = ToPath(folder);
    folder_.reset(path ? ::opendir(path->constData()) : nullptr);
    if (!folder_) {
        status_ = FailureOf(path ? errno : ENOENT);
    }
}

bool FolderReader::Next(FolderEntry& entry)
{
    const dirent* read = nullptr;
    std::string_view name;
    do {
        errno = 0;
        read = folder_ ? ::readdir(folder_.get()) : nullptr;
        if (!read) {
            status_ = errno != 0 ? FailureOf(errno) : status_;
            return false;
        }
        name = read->d_name;
    } while (name == "." || name == "..");
    entry.name = FromBytes(name);
    entry.isFolder = read->d_type == DT_DIR;
    entry.isLink = read->d_type == DT_LNK;
    if (entry.isLink || read->d_type == DT_UNKNOWN) {
        const int descriptor = ::dirfd(folder_.get());
        struct stat info
        {};
        entry.isFolder = ::fstatat(descriptor, read->d_name, &info, 0) == 0 && S_ISDIR(info.st_mode);
        entry.isLink =
            ::fstatat(descriptor, read->d_name, &info, AT_SYMLINK_NOFOLLOW) == 0 && S_ISLNK(info.st_mode);
    }
    return true;
}

} // namespace platform
