// SPDX-License-Identifier: MIT
//
// Giving a file a new head and tail around a part that stays. The file keeps its place on the disk with its
// owner, permissions and links, and so is emptied and filled again; before that, all of the new content is
// safe in a temporary file.
#pragma once

#include "platform/FileBytes.h"
#include "platform/Result.h"

#include <QByteArray>
#include <QString>

namespace platform {

// Bytes from `begin` up to and without `end`, counted from 0.
struct FileRange
{
    qint64 begin = 0;
    qint64 end = 0;
};

// Rewrites the plain file `path` as `head`, the bytes `kept` of what it holds, and `tail`; `kept` may reach
// beyond the file. `times` are what its times are set to then.
//
// The temporary file lies in the system's temporary folder (TEMP, else TMPDIR) and is named by the time,
// "mp320041231235959.mp3"; one that is there already is never overwritten. A failure before it is complete
// and on the disk leaves the file untouched. If the file can't be filled afterwards the temporary file stays,
// and the failure names it.
Status RewriteFile(const QString& path, const QByteArray& head, FileRange kept, const QByteArray& tail,
                   const FileTimes& times);

} // namespace platform
