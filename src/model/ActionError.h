// SPDX-License-Identifier: MIT
//
// ActionError: what a failing text or number function throws inside an action handler. It is caught once, in
// the frame around the handlers (actions/ActionHandler.h), which then gives the name back as it came in.
// Nothing else in the program throws.
#pragma once

#include <QString>

#include <utility>

namespace model {

class ActionError
{
public:
    explicit ActionError(QString description) : description_(std::move(description)) {}

    // A short sentence such as "Type mismatch".
    const QString& Description() const { return description_; }

private:
    QString description_;
};

} // namespace model
