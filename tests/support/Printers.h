// SPDX-License-Identifier: MIT
//
// Lets GoogleTest print Qt's texts in failures. What can't be printed is shown by its code, so that a lone
// surrogate, which stands for a byte of a file name, can be told. The overloads stand in the global
// namespace, that of QString, where GoogleTest finds them.
#pragma once

#include <QByteArray>
#include <QDebug>
#include <QStringList>

#include <ostream>

// NOLINTBEGIN(readability-identifier-naming): names that GoogleTest looks for
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << QDebug::toString(text).toStdString();
}

inline void PrintTo(const QStringList& texts, std::ostream* out)
{
    *out << QDebug::toString(texts).toStdString();
}

inline void PrintTo(const QByteArray& bytes, std::ostream* out)
{
    *out << QDebug::toString(bytes).toStdString();
}
// NOLINTEND(readability-identifier-naming)
