// SPDX-License-Identifier: MIT
//
// ProgramFolder: where the program keeps its own files (settings, run logs, documents of the managers). One
// value, made by main and handed down; tests make one of a temporary folder.
#pragma once

#include "platform/Result.h"

#include <QString>

namespace platform {

class ProgramFolder
{
public:
    // REQUIRES: `path` is complete. A missing separator at its end is added.
    explicit ProgramFolder(QString path);

    // The executable's folder if a Quillmark.ini lies in it (portable use), else the user's data folder for
    // this program.
    static ProgramFolder OfThisProcess();

    // With a trailing separator.
    const QString& Path() const { return path_; }

    // Path() & relative.
    QString PathOf(const QString& relative) const { return path_ + relative; }

    // Makes the folder if it is missing; to be called before the first write into it.
    Status Ensure() const;

private:
    QString path_;
};

} // namespace platform
