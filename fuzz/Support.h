// SPDX-License-Identifier: MIT
//
// What the targets share: the check, and files for readers that take a path.
#pragma once

#include "platform/Result.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace fuzz {

// Throws std::logic_error with the sentence unless it holds. The same for a step that must succeed.
void Require(bool holds, const char* sentence);
void Require(const platform::Status& status);

// A folder for files, complete, with a separator at its end. It is one in all calls and is removed when the
// process ends.
const QString& Folder();

// Writes a file of that folder, in the place of one that is there, and gives its path.
QString WriteFile(const char* name, QByteArrayView content);

QByteArray ContentOf(const QString& path);

} // namespace fuzz
