// SPDX-License-Identifier: MIT
#include "workspace/CommandLine.h"

#include "model/Text.h"

namespace workspace {

namespace {

constexpr QChar ItemSeparator = u'|';

} // namespace

Start ChooseStart(const QString& commandLine)
{
    if (commandLine.isEmpty()) {
        return Start::Normal;
    }
    return commandLine.contains(ItemSeparator) ? Start::List : Start::Drop;
}

QStringList ParseListCommandLine(const QString& commandLine)
{
    return commandLine.isEmpty() ? QStringList() : commandLine.split(ItemSeparator);
}

QStringList ParseDropCommandLine(const QString& commandLine)
{
    QString output;
    output.reserve(commandLine.size());
    bool inQuote = false;
    bool escaped = false; // the next quote closes, although a backslash stands before it
    for (qsizetype i = 0; i < commandLine.size(); ++i) {
        const QChar c = commandLine.at(i);
        const bool afterBackslash = output.endsWith(u'\\');
        if (c == u'\\') {
            const bool beforeQuote = i + 1 < commandLine.size() && commandLine.at(i + 1) == u'"';
            if (beforeQuote && afterBackslash) {
                escaped = true;
                continue;
            }
            output += c;
        } else if (c == u'"') {
            if (!escaped && afterBackslash) {
                output.back() = c;
            } else {
                inQuote = !inQuote;
            }
        } else if (c == u' ' && !inQuote) {
            if (!output.endsWith(ItemSeparator)) {
                output += ItemSeparator;
            }
        } else {
            output += c;
        }
        escaped = false;
    }
    return ParseListCommandLine(output);
}

QString SplitPathPart(const QString& path, bool wantFolder, QChar separator)
{
    const QString name = path.mid(path.lastIndexOf(separator) + 1);
    return wantFolder ? model::Replace(path, name, QString()) : name;
}

} // namespace workspace
