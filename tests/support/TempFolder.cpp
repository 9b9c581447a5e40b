// SPDX-License-Identifier: MIT
#include "support/TempFolder.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <stdlib.h>
#include <sys/stat.h>
#include <system_error>

namespace testing_support {

namespace {

void Require(bool isDone, const char* operation, const fs::path& path)
{
    if (!isDone) {
        throw std::system_error(errno, std::generic_category(), operation + (' ' + path.string()));
    }
}

} // namespace

TempFolder::TempFolder(const QString& parent)
{
    path_ = (parent.isEmpty() ? fs::temp_directory_path().c_str() : platform::ToBytes(parent)) +
            "/quillmark-test-XXXXXX";
    Require(::mkdtemp(path_.data()) != nullptr, "mkdtemp", path_.toStdString());
    path_ += '/';
    SetMode({}, 0755); // tests of permissions look at it as other users
}

TempFolder::~TempFolder()
{
    // Without its permissions a folder couldn't be emptied. What fails here has nobody to be told to.
    const fs::path folder = path_.chopped(1).toStdString();
    std::error_code ignored;
    fs::permissions(folder, fs::perms::owner_all, fs::perm_options::add, ignored);
    for (fs::recursive_directory_iterator at(folder, ignored), end; at != end; at.increment(ignored)) {
        if (at->symlink_status(ignored).type() == fs::file_type::directory) {
            fs::permissions(at->path(), fs::perms::owner_all, fs::perm_options::add, ignored);
        }
    }
    fs::remove_all(folder, ignored);
}

void TempFolder::Write(const QString& name, const QByteArray& content)
{
    const fs::path path = PathTo(name);
    fs::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file.write(content.constData(), content.size());
    file.close();
    Require(!file.fail(), "write", path);
}

void TempFolder::MakeLink(const QString& name, const QString& target)
{
    fs::create_symlink(platform::ToBytes(target).toStdString(), PathTo(name));
}

void TempFolder::SetModified(const QString& name, qint64 secondsSinceEpoch)
{
    const std::array<timespec, 2> times{timespec{0, UTIME_OMIT}, timespec{secondsSinceEpoch, 0}};
    Require(::utimensat(AT_FDCWD, PathTo(name).c_str(), times.data(), AT_SYMLINK_NOFOLLOW) == 0, "utimensat",
            PathTo(name));
}

QStringList TempFolder::Names(const QString& subfolder) const
{
    QStringList names;
    for (const auto& entry : fs::directory_iterator(PathTo(subfolder))) {
        names.append(platform::FromBytes(entry.path().filename().string()));
    }
    std::sort(names.begin(), names.end());
    return names;
}

QByteArray TempFolder::Content(const QString& name) const
{
    std::ifstream file(PathTo(name), std::ios::binary);
    Require(file.is_open(), "open", PathTo(name));
    return QByteArray::fromStdString({std::istreambuf_iterator<char>(file), {}});
}

} // namespace testing_support
