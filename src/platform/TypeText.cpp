// SPDX-License-Identifier: MIT
#include "platform/TypeText.h"

#include <QMimeDatabase>
#include <QMimeType>

namespace platform {

QString TypeTexts::OfFile(const QString& name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    const QString extension = dot < 0 ? QString() : name.mid(dot + 1).toLower();
    const auto known = byExtension_.constFind(extension);
    if (known != byExtension_.cend()) {
        return *known;
    }
    const QMimeType type =
        QMimeDatabase().mimeTypeForFile(QStringLiteral("x.") + extension, QMimeDatabase::MatchExtension);
    const QString text = type.name() == QStringLiteral("image/jpeg") ? JpegTypeText : type.comment();
    byExtension_.insert(extension, text);
    return text;
}

} // namespace platform
