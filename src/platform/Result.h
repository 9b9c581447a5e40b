// SPDX-License-Identifier: MIT
//
// Status: how an operation that can fail tells its caller so. It is a value: success, or a sentence that can
// be shown to a person. Nothing is thrown and nothing is stored elsewhere; a caller that passes a failure
// over keeps the value that it had before.
#pragma once

#include <QString>

#include <utility>

namespace platform {

class [[nodiscard]] Status
{
public:
    // Success.
    Status() = default;

    // A failure with its description, a short sentence without a full stop such as "File already exists".
    // REQUIRES: `description` is not empty.
    static Status Failure(QString description)
    {
        Status status;
        status.description_ = std::move(description);
        return status;
    }

    bool IsOk() const { return description_.isEmpty(); }

    // Empty after success.
    const QString& Description() const { return description_; }

private:
    QString description_;
};

} // namespace platform
