// SPDX-License-Identifier: MIT
//
// Lets GoogleTest print Qt's texts in failures. What can't be printed is shown by its code, so that a lone
// surrogate, which stands for a byte of a file name, can be told. It stands in the global
// namespace, that of QString, where GoogleTest finds them.
#pragma once

#include <QByteArray>
#include <QDebug>
#include <QStringList>

#include <concepts>
#include <ostream>

template<typename Text>
requires std::same_as<Text, QString> || std::same_as<Text, QStringList> || std::same_as<Text, QByteArray>
void PrintTo(const Text& text, std::ostream* out) // NOLINT(readability-identifier-naming): GoogleTest's name
{
    *out << QDebug::toString(text).toStdString();
}
