// SPDX-License-Identifier: MIT
//
// Text functions that count in characters. A character is a Unicode code point: no function here ever cuts a
// surrogate pair. A lone surrogate, which stands for a byte of a name that is no valid UTF-8, counts as one
// character. Positions are 1-based. Texts without surrogates, nearly all names, take a fast path.
#pragma once

#include <QString>

namespace model {

// The character at unit offset `at`: one or two units. With it a text is walked character by character.
// REQUIRES: 0 <= at < text.size(), and no pair begins before it.
QStringView CharacterAt(const QString& text, qsizetype at);

// The code point of one character; a lone surrogate is its own.
char32_t CodePoint(QStringView character);

// The most units that a text on its way to a name may have, far more than any name takes. Without a bound, a
// list that doubles a text with each row would take all memory.
inline constexpr qsizetype LongestText = 1 << 16;

// Throws ActionError for a text of more units than that.
void CheckLength(qsizetype units);

// Number of characters.
int Length(const QString& text);

// The first `count` characters, or all if there are fewer. Throws ActionError for a negative count.
QString Left(const QString& text, int count);

// The last `count` characters, or all if there are fewer. Throws ActionError for a negative count.
QString Right(const QString& text, int count);

// `count` characters from `start` on, as far as there are any. Throws ActionError for a start below 1 or a
// negative count.
QString Mid(const QString& text, int start, int count);

// The first character of `text`, repeated `count` times; empty for count 0, whatever the text. Throws
// ActionError for a negative count, and for an empty text with a count above 0.
QString Repeat(int count, const QString& text);

// Position of the first occurrence of `find`, 0 if there is none. An empty `find` is found at 1.
int Find(const QString& text, const QString& find, Qt::CaseSensitivity comparison);

// `text` with every occurrence of `find` replaced by `with`, from the first character on. An empty `find`
// occurs nowhere. Throws ActionError where the result would be longer than LongestText.
QString Replace(const QString& text, const QString& find, const QString& with,
                Qt::CaseSensitivity comparison = Qt::CaseSensitive);

// Upper and lower case by Unicode's rules, the same under every locale. A lone surrogate stays, where
// QString's own functions would lose it.
QString UpperCase(const QString& text);
QString LowerCase(const QString& text);

// Swaps the case of the ASCII letters and leaves all others alone, unlike upper and lower case.
QString InvertCase(const QString& text);

} // namespace model
