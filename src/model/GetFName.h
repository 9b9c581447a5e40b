// SPDX-License-Identifier: MIT
//
// The one way in which a name is split into base and extension.
#pragma once

#include <QString>

namespace model {

// The type text that marks a folder row everywhere.
inline const QString FileFolder = QStringLiteral("File Folder");

// The type text of the pictures that tell about themselves.
inline const QString JpegImage = QStringLiteral("JPEG Image");

// The base name, or the extension with its dot if `wantExtension`. The last "." divides them; a name without
// one, and every name whose type is "File Folder", is all base. So "a.b.txt" is "a.b" and ".txt", ".ini" has
// an empty base, and "a." has the dot alone as extension.
QString GetFName(const QString& name, const QString& type, bool wantExtension);

} // namespace model
