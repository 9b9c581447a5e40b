// SPDX-License-Identifier: MIT
//
// The names of files that were dropped on a window.
#pragma once

#include <QStringList>

class QMimeData;

namespace windowing {

// The paths of a drop, in its order, empty if it holds no files. They are read from the bytes of the list, so
// that names that are no valid UTF-8 survive as platform::FromBytes tells; QUrl would lose them. Lines that
// name no local path (comments, web addresses) are passed over, a host's name as well, and a path ends at its
// first zero byte.
QStringList DroppedNames(const QMimeData& drop);

} // namespace windowing
