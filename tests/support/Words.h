// SPDX-License-Identifier: MIT
//
// Words: small tables of texts, written as one text. Blanks part the words; a word "~" stands for an empty
// text, and a "~" within a word for a blank.
#pragma once

#include "support/Printers.h"

#include <gtest/gtest.h>
#include <vector>

namespace testing_support {

inline QStringList Words(const QString& table)
{
    QStringList words = table.split(u' ', Qt::SkipEmptyParts);
    for (QString& word : words) {
        word = word == u"~" ? QString() : word.replace(u'~', u' ');
    }
    return words;
}

// The same in rows of `columns` words each.
inline std::vector<QStringList> Rows(int columns, const QString& table)
{
    const QStringList words = Words(table);
    EXPECT_EQ(words.size() % columns, 0) << "a row isn't complete";
    std::vector<QStringList> rows;
    for (qsizetype at = 0; at < words.size(); at += columns) {
        rows.push_back(words.mid(at, columns));
    }
    return rows;
}

} // namespace testing_support
