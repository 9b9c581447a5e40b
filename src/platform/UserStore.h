// SPDX-License-Identifier: MIT
//
// The store of small settings that belong to a user and not to the program's folder, such as where a window
// stood. A setting is found by application, section and key, in that order; it is an ini file in the user's
// configuration folder.
#pragma once

#include "platform/Result.h"

namespace platform {

// What was saved, else `defaultValue`.
QString GetSetting(const QString& application, const QString& section, const QString& key,
                   const QString& defaultValue);

// Makes the file and its folder if they are missing. Fails with "Permission denied" if the file can't be
// written.
Status SaveSetting(const QString& application, const QString& section, const QString& key,
                   const QString& value);

} // namespace platform
