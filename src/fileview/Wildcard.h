// SPDX-License-Identifier: MIT
//
// Wildcard: the pattern that file names are searched by. "*" stands for any characters, "?" for one, without
// regard to case. "*.*" matches every name, also one without a dot.
#pragma once

#include <QString>

namespace fileview {

class Wildcard
{
public:
    explicit Wildcard(const QString& pattern);

    bool Matches(const QString& name) const;

private:
    QString pattern_; // in lower case
    bool matchesAll_ = false;
};

} // namespace fileview
