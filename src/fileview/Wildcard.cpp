// SPDX-License-Identifier: MIT
#include "fileview/Wildcard.h"

#include "model/Text.h"

namespace fileview {

namespace {

// Each character in lower case by itself, so that it stays one character.
QString LowerEach(const QString& text)
{
    QString lower;
    lower.reserve(text.size());
    for (qsizetype at = 0; at < text.size();) {
        const QStringView character = model::CharacterAt(text, at);
        lower += QStringView(QChar::fromUcs4(QChar::toLower(model::CodePoint(character))));
        at += character.size();
    }
    return lower;
}

} // namespace

Wildcard::Wildcard(const QString& pattern)
    : pattern_(LowerEach(pattern)),
      matchesAll_(pattern == QStringLiteral("*.*") || pattern == QStringLiteral("*"))
{}

bool Wildcard::Matches(const QString& name) const
{
    if (matchesAll_) {
        return true;
    }
    const QString text = LowerEach(name);
    qsizetype at = 0;
    qsizetype inPattern = 0;
    // The last "*" and the text that it left over: if the rest doesn't fit, it takes one character more.
    qsizetype afterStar = -1;
    qsizetype leftOver = 0;
    while (at < text.size()) {
        const bool hasMore = inPattern < pattern_.size();
        if (hasMore && pattern_.at(inPattern) == u'*') {
            afterStar = ++inPattern;
            leftOver = at;
        } else if (hasMore && pattern_.at(inPattern) == u'?') {
            ++inPattern;
            at += model::CharacterAt(text, at).size();
        } else if (hasMore && pattern_.at(inPattern) == text.at(at)) {
            ++inPattern;
            ++at;
        } else if (afterStar >= 0) {
            inPattern = afterStar;
            leftOver += model::CharacterAt(text, leftOver).size();
            at = leftOver;
        } else {
            return false;
        }
    }
    while (inPattern < pattern_.size() && pattern_.at(inPattern) == u'*') {
        ++inPattern;
    }
    return inPattern == pattern_.size();
}

} // namespace fileview
