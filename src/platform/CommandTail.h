// SPDX-License-Identifier: MIT
//
// The command line as one text, the tail behind the program's name. The system hands over separate arguments;
// the program's starts are chosen from, and parsed out of, one text. This builds it.
#pragma once

#include <QString>
#include <QStringList>

namespace platform {

// The process's arguments behind the program's name, byte for byte (see NameBytes.h).
QStringList ArgumentsOf(int argc, const char* const* argv);

// Joins arguments into a tail. No arguments: empty. If any argument holds a "|", the arguments stand as they
// are, with blanks between, since such a tail isn't unquoted. Otherwise each is quoted so that the tail's
// drop parser gives back exactly these items, with all their quotes, blanks and backslashes; only an empty
// argument between others, or alone, is lost.
QString BuildCommandTail(const QStringList& arguments);

} // namespace platform
