// SPDX-License-Identifier: MIT
//
// The command line: which start it asks for, and the items in it. It is one text, the tail behind the
// program's name (platform/CommandTail.h builds it). There are no switches.
#pragma once

#include "platform/FileSystem.h"

#include <QString>
#include <QStringList>

namespace workspace {

enum class Start {
    Normal, // nothing on the command line
    List,   // files, separated by "|"
    Drop,   // a rename drop and the files to run it on, as a shell writes them
};

// A "|" anywhere, even within quotes, makes a list start.
Start ChooseStart(const QString& commandLine);

// The items between "|", all kept, empty ones too. Quotes and blanks are ordinary characters here.
QStringList ParseListCommandLine(const QString& commandLine);

// The items of a shell-style list: parted by blanks outside quotes, without the quotes; \" is a literal
// quote, and \\" is a backslash before a closing quote. A run of blanks parts two items once; a blank at the
// end leaves one empty item.
QStringList ParseDropCommandLine(const QString& commandLine);

// The name of a path: what follows its last separator. Or, if `wantFolder`, the path with every occurrence of
// the name's text taken out, case-sensitively: normally the folder with its trailing separator, but a folder
// that repeats the name loses those letters as well (C:\a\a gives C:\\). Lists handed over have always been
// read that way.
QString SplitPathPart(const QString& path, bool wantFolder, QChar separator = platform::PathSeparator);

} // namespace workspace
