// SPDX-License-Identifier: MIT
#include "platform/ShellOpen.h"

#include "platform/NameBytes.h"

#include <QProcess>
#include <QStandardPaths>

namespace platform {

bool ShellOpen(const QString& path)
{
    // As an address, since a process's arguments would lose bytes that are no valid UTF-8.
    const QString address =
        QStringLiteral("file://") + QString::fromLatin1(ToBytes(path).toPercentEncoding("/"));
    const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    return !path.isEmpty() && !opener.isEmpty() && QProcess::startDetached(opener, {address});
}

} // namespace platform
