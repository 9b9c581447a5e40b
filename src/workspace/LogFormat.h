// SPDX-License-Identifier: MIT
//
// The run log's form: a text file, one line a row in the order of the run, of four fields joined by a
// separator: path, original name, new name, result. What writes it and what reads it agree here.
#pragma once

#include <QString>

namespace workspace {

inline const QString LogSeparator = QStringLiteral(" : ");

// The fourth field of a row that was renamed; any other text is the description of a failure.
inline const QString RenameSuccessful = QStringLiteral("Rename Successful");

} // namespace workspace
