// SPDX-License-Identifier: MIT
#include "platform/CommandTail.h"

#include "platform/NameBytes.h"

#include <algorithm>

namespace platform {

namespace {

// Writes one item of a tail. The parser takes a backslash before a quote as a mark that the quote is literal,
// and a backslash behind another one, before a quote, as a mark that it isn't.
class ItemQuoter
{
public:
    QString Quoted(const QString& item)
    {
        if (item.isEmpty()) {
            return QStringLiteral("\"\"");
        }
        for (qsizetype at = 0; at < item.size();) {
            qsizetype backslashes = 0;
            while (at < item.size() && item.at(at) == u'\\') {
                ++backslashes;
                ++at;
            }
            output_ += QString(backslashes, u'\\');
            if (at < item.size()) {
                Put(item.at(at++), backslashes > 0);
            } else if (inQuote_) {
                Toggle(backslashes > 0);
            }
        }
        if (inQuote_) {
            Toggle(false);
        }
        return output_;
    }

private:
    void Put(QChar c, bool afterBackslash)
    {
        if (c == u'"' && afterBackslash) {
            // The first quote only ends or begins a quotation, the second one replaces the last of the
            // backslashes.
            output_ += QStringLiteral("\\");
            Toggle(true);
            output_ += c;
            return;
        }
        if (c == u'"') {
            output_ += u'\\';
        } else if (c == u' ' && !inQuote_) {
            Toggle(afterBackslash);
        }
        output_ += c;
    }

    // A quote that begins or ends a quotation.
    void Toggle(bool afterBackslash)
    {
        output_ += afterBackslash ? QStringLiteral("\\\"") : QStringLiteral("\"");
        inQuote_ = !inQuote_;
    }

    QString output_;
    bool inQuote_ = false;
};

} // namespace

QStringList ArgumentsOf(int argc, const char* const* argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.append(FromBytes(argv[i]));
    }
    return arguments;
}

QString BuildCommandTail(const QStringList& arguments)
{
    const bool isList = std::any_of(arguments.begin(), arguments.end(),
                                    [](const QString& argument) { return argument.contains(u'|'); });
    if (isList) {
        return arguments.join(u' ');
    }
    QStringList quoted;
    for (const QString& argument : arguments) {
        quoted.append(ItemQuoter().Quoted(argument));
    }
    return quoted.join(u' ');
}

} // namespace platform
