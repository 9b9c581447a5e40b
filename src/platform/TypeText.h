// SPDX-License-Identifier: MIT
//
// The words in which the system describes a file's type, as file managers show them. Taken from the name
// alone through the shared MIME database; no file is opened.
#pragma once

#include <QHash>
#include <QString>

namespace platform {

// The type text of JPEG pictures, whatever the MIME database calls them.
inline const QString JpegTypeText = QStringLiteral("JPEG Image");

// Looks type texts up and remembers them by extension, so that a list of 100,000 files asks the database once
// an extension.
class TypeTexts
{
public:
    // "JPEG Image" for image/jpeg, else the MIME type's comment in the system's language. Regards only what
    // follows the last dot, in any case; a name without a dot, or with nothing behind it, has the text of an
    // unknown type.
    QString OfFile(const QString& name);

private:
    QHash<QString, QString> byExtension_; // key: extension in lower case, without the dot
};

} // namespace platform
