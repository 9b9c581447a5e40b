// SPDX-License-Identifier: MIT
//
// TempFolder: a real folder for a test, removed with all that is in it when the test ends, also where the
// test took permissions away. Names may lead into subfolders ("a/b.txt"), which are made, and may hold bytes
// that are no UTF-8 (see platform/NameBytes.h).
//
// What can't be done throws std::system_error, which fails the test with the name and the system's text.
#pragma once

#include "platform/NameBytes.h"
#include "support/Printers.h"

#include <filesystem>

namespace testing_support {

namespace fs = std::filesystem;

class TempFolder
{
public:
    // In the system's temporary folder, or in `parent`.
    explicit TempFolder(const QString& parent = {});
    ~TempFolder();
    Q_DISABLE_COPY_MOVE(TempFolder)

    // Complete, with a separator at its end.
    QString Path() const { return platform::FromBytes(path_); }

    // Makes a file, or gives an existing one new content.
    void Write(const QString& name, const QByteArray& content = {});

    void MakeFolder(const QString& name) { fs::create_directories(PathTo(name)); }

    // Makes a symbolic link `name` with the text `target`, which needn't exist.
    void MakeLink(const QString& name, const QString& target);

    void SetModified(const QString& name, qint64 secondsSinceEpoch);

    // Permissions, such as 0644. The empty name is the folder itself.
    void SetMode(const QString& name, unsigned mode) { permissions(PathTo(name), fs::perms(mode)); }
    unsigned Mode(const QString& name) const { return unsigned(status(PathTo(name)).permissions()); }

    // What lies directly in the folder, hidden names included, sorted by code unit.
    QStringList Names(const QString& subfolder = {}) const;

    QByteArray Content(const QString& name) const;

    // True for a dangling link too.
    bool Exists(const QString& name) const { return exists(symlink_status(PathTo(name))); }

private:
    fs::path PathTo(const QString& name) const { return (path_ + platform::ToBytes(name)).toStdString(); }

    QByteArray path_; // with a separator at its end
};

} // namespace testing_support
