// SPDX-License-Identifier: MIT
//
// The attributes of a file in the classic sense, as one number. Read-only is the owner's missing permission
// to write. Hidden, system and archive have no place of their own here: they are marks in the extended
// attribute `user.DOSATTRIB`, as a hexadecimal text such as "0x22", which Samba and Wine write and read too.
// So Windows clients of a shared folder see what was set here.
#pragma once

#include "platform/Result.h"

#include <optional>

namespace platform {

// Parts of the number. 0 is a normal file.
namespace attribute {
inline constexpr int ReadOnly = 1;
inline constexpr int Hidden = 2;
inline constexpr int System = 4;
inline constexpr int Directory = 16;
inline constexpr int Archive = 32;
} // namespace attribute

// The attributes of what is at `path`, a complete path; at a link, of what it points at. Marks in a form that
// isn't understood count as none. Empty if nothing is there or it can't be reached.
std::optional<int> GetAttr(const QString& path);

// Gives the file or folder at `path` exactly these attributes: what isn't in `value` is taken away. Read-only
// takes the permission to write from everybody; without it the owner gets it back, and nobody else. Directory
// is passed over for a folder and fails for a file with "Invalid procedure call or argument"; parts that
// aren't listed above are passed over. Where the file system has no extended attributes, marks fail with the
// system's own text, but 0 and read-only work. Other failures are told as in FileSystem.h. After any failure
// the file is as it was.
Status SetAttr(const QString& path, int value);

} // namespace platform
