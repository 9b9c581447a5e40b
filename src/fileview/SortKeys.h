// SPDX-License-Identifier: MIT
//
// The keys by which a column is sorted: texts that stand in the wanted order when they are compared as texts.
// They are made once a row and never take the place of a row's own texts.
#pragma once

#include "model/FileRow.h"

#include <QString>

#include <span>
#include <vector>

namespace fileview {

// What a list is sorted by.
struct SortRequest
{
    int column = 1; // counted from 1
    bool ascending = true;
    int dataType = 0;         // ldtString, ldtNumber, ldtDateTime
    bool byMagnitude = false; // for ldtString: by the number at the end of the names
};

// One key for each of these texts of the sort column, in their order.
//   ldtNumber    the number at the text's start, commas left out, in ten digits or more and twenty decimals;
//                negative ones before all others, the greatest magnitude first
//   ldtDateTime  the date and time on a 24-hour clock; a text that is none has the key before it
//   else         the text itself, without regard to case
std::vector<QString> KeysOf(const std::vector<QString>& texts, int dataType);

// The keys by magnitude: a name without its last four characters, with the number at its end widened to the
// greatest number of digits that a name has. The first name's digits don't count for that width, and may
// stand beyond it. A name of fewer than four characters is its own key.
std::vector<QString> MagnitudeKeysOf(const std::vector<QString>& names);

// The places of the keys when sorted, counted from 0. Equal keys keep their order in both directions.
std::vector<int> OrderOf(const std::vector<QString>& keys, bool ascending);

} // namespace fileview
