// SPDX-License-Identifier: MIT
//
// File names as the system holds them (any bytes but NUL and "/") and as text. Names are UTF-8 in practice,
// but nothing forces them to be: a byte that is no valid UTF-8 becomes a lone surrogate U+DC80 to U+DCFF (its
// value plus U+DC00) and returns as the same byte, so every name survives the way into a QString and back.
//
// For every byte string b: ToBytes(FromBytes(b)) == b.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>

namespace platform {

// Text of a name or path. Never fails. Overlong forms and encoded surrogates count as invalid, byte by byte.
QString FromBytes(QByteArrayView bytes);

// Bytes of a text. Lone surrogates U+DC80 to U+DCFF become the bytes they stand for; any other lone
// surrogate, which no name on disk can yield, becomes the replacement character's three bytes.
QByteArray ToBytes(const QString& text);

// ToBytes for a path that goes to the system. Empty optional if it holds a NUL, at which the system would cut
// it.
std::optional<QByteArray> ToPath(const QString& text);

} // namespace platform
