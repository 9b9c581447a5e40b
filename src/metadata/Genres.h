// SPDX-License-Identifier: MIT
//
// The genres of ID3v1 by their numbers, with the two that ID3v2 adds as codes: -2 is "CR", -1 is "RX".
// Source: ID3v1 and ID3v2.3.0, appendix A.
#pragma once

#include <QString>

namespace metadata {

constexpr int OtherGenre = 12;
constexpr int UnknownGenre = 255;

// The name of a genre; empty for a number that has none.
QString GenreName(int id);

// The number of a name, whatever its case, its blanks, "/", "&", "-", "+" and " and ". 255 for a blank name,
// 12 ("Other") for one that isn't known.
int ToGenreID(const QString& name);

} // namespace metadata
