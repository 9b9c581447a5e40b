// SPDX-License-Identifier: MIT
//
// The list of from-to pairs that the actions Replace and Extension run over a name. Each of the two has a
// list of its own.
#pragma once

#include <QString>

#include <vector>

namespace actions {

struct ReplaceRow
{
    QString matchFlag; // exactly "y": case-sensitive. Anything else, "Y" too: case-insensitive
    QString from;      // the text sought
    QString to;        // a literal or token

    Qt::CaseSensitivity Comparison() const
    {
        return matchFlag == QLatin1String("y") ? Qt::CaseSensitive : Qt::CaseInsensitive;
    }

    bool operator==(const ReplaceRow&) const = default;
};

// In the order in which they run.
using ReplaceRows = std::vector<ReplaceRow>;

} // namespace actions
