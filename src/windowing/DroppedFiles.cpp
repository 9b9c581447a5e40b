// SPDX-License-Identifier: MIT
#include "windowing/DroppedFiles.h"

#include "platform/NameBytes.h"

#include <QByteArray>
#include <QMimeData>

namespace windowing {

namespace {

// The path that a line of the list names, still percent-encoded; empty if it names none. "file:///a",
// "file://host/a" and "file:/a" are all the path "/a".
QByteArray EncodedPath(const QByteArray& line)
{
    const QByteArray scheme = QByteArrayLiteral("file:");
    if (line.left(scheme.size()).toLower() != scheme) {
        return {};
    }
    QByteArray path = line.mid(scheme.size());
    if (path.startsWith("//")) {
        const qsizetype endOfHost = path.indexOf('/', 2);
        path = endOfHost < 0 ? QByteArray() : path.mid(endOfHost);
    }
    return path.startsWith('/') ? path : QByteArray();
}

} // namespace

QStringList DroppedNames(const QMimeData& drop)
{
    QStringList names;
    const QList<QByteArray> lines = drop.data(QStringLiteral("text/uri-list")).split('\n');
    for (const QByteArray& line : lines) {
        const QByteArray path = QByteArray::fromPercentEncoding(EncodedPath(line.trimmed()));
        if (!path.isEmpty()) {
            const qsizetype zero = path.indexOf('\0');
            names.append(platform::FromBytes(zero < 0 ? path : path.first(zero)));
        }
    }
    return names;
}

} // namespace windowing
