// SPDX-License-Identifier: MIT
#include "model/Text.h"

#include "model/ActionError.h"

#include <algorithm>
#include <utility>

namespace model {

namespace {

bool HasSurrogates(const QString& text)
{
    return std::any_of(text.cbegin(), text.cend(), [](QChar unit) { return unit.isSurrogate(); });
}

// Code units that the character at unit offset `at` takes: 2 for a surrogate pair, else 1.
qsizetype UnitsAt(const QString& text, qsizetype at)
{
    const bool isPair =
        text.at(at).isHighSurrogate() && at + 1 < text.size() && text.at(at + 1).isLowSurrogate();
    return isPair ? 2 : 1;
}

// Unit offset behind the first `characters` characters, counted from unit offset `from`; the end if there are
// fewer.
qsizetype Advance(const QString& text, qsizetype from, qsizetype characters)
{
    qsizetype at = from;
    for (; characters > 0 && at < text.size(); --characters) {
        at += UnitsAt(text, at);
    }
    return at;
}

// True if unit offset `at` lies between two characters, not within a pair.
bool IsBoundary(const QString& text, qsizetype at)
{
    return at == 0 || at == text.size() || !text.at(at).isLowSurrogate() ||
           !text.at(at - 1).isHighSurrogate();
}

// Unit offset of the first occurrence at or behind `from` that is made of whole characters; -1 if there is
// none.
qsizetype UnitsTo(const QString& text, const QString& find, qsizetype from, Qt::CaseSensitivity comparison)
{
    qsizetype at = text.indexOf(find, from, comparison);
    while (at >= 0 && !(IsBoundary(text, at) && IsBoundary(text, at + find.size()))) {
        at = text.indexOf(find, at + 1, comparison);
    }
    return at;
}

// `text` with all parts between lone surrogates converted.
template<class Convert>
QString WithCase(const QString& text, Convert convert)
{
    if (!HasSurrogates(text)) {
        return convert(text);
    }
    QString result;
    QString part;
    for (qsizetype at = 0; at < text.size();) {
        const QStringView character = CharacterAt(text, at);
        at += character.size();
        if (character.size() == 1 && character.front().isSurrogate()) {
            result += convert(std::exchange(part, QString()));
            result += character;
        } else {
            part += character;
        }
    }
    return result + convert(part);
}

[[noreturn]] void FailCall()
{
    throw ActionError(QStringLiteral("Invalid procedure call or argument"));
}

} // namespace

QStringView CharacterAt(const QString& text, qsizetype at)
{
    return QStringView(text).mid(at, UnitsAt(text, at));
}

char32_t CodePoint(QStringView character)
{
    return character.size() == 2 ? QChar::surrogateToUcs4(character[0], character[1])
                                 : character.front().unicode();
}

void CheckLength(qsizetype units)
{
    if (units > LongestText) {
        throw ActionError(QStringLiteral("Out of string space"));
    }
}

int Length(const QString& text)
{
    if (!HasSurrogates(text)) {
        return static_cast<int>(text.size());
    }
    int count = 0;
    for (qsizetype at = 0; at < text.size(); at += UnitsAt(text, at)) {
        ++count;
    }
    return count;
}

QString Left(const QString& text, int count)
{
    if (count < 0) {
        FailCall();
    }
    return HasSurrogates(text) ? text.left(Advance(text, 0, count)) : text.left(count);
}

QString Right(const QString& text, int count)
{
    if (count < 0) {
        FailCall();
    }
    if (!HasSurrogates(text)) {
        return text.right(count);
    }
    return text.mid(Advance(text, 0, std::max(0, Length(text) - count)));
}

QString Mid(const QString& text, int start, int count)
{
    if (start < 1 || count < 0) {
        FailCall();
    }
    if (!HasSurrogates(text)) {
        return text.mid(start - 1, count);
    }
    const qsizetype from = Advance(text, 0, start - 1);
    return text.mid(from, Advance(text, from, count) - from);
}

QString Repeat(int count, const QString& text)
{
    if (count < 0 || (count > 0 && text.isEmpty())) {
        FailCall();
    }
    return count == 0 ? QString() : Left(text, 1).repeated(count);
}

int Find(const QString& text, const QString& find, Qt::CaseSensitivity comparison)
{
    const qsizetype at = UnitsTo(text, find, 0, comparison);
    return at < 0 ? 0 : Length(text.left(at)) + 1;
}

QString Replace(const QString& text, const QString& find, const QString& with, Qt::CaseSensitivity comparison)
{
    qsizetype at = find.isEmpty() ? -1 : UnitsTo(text, find, 0, comparison);
    if (at < 0) {
        return text;
    }
    QString result;
    qsizetype copied = 0;
    for (; at >= 0; at = UnitsTo(text, find, copied, comparison)) {
        result += QStringView(text).mid(copied, at - copied);
        result += with;
        copied = at + find.size();
        CheckLength(result.size() + text.size() - copied);
    }
    result += QStringView(text).mid(copied);
    return result;
}

QString UpperCase(const QString& text)
{
    return WithCase(text, [](const QString& part) { return part.toUpper(); });
}

QString LowerCase(const QString& text)
{
    return WithCase(text, [](const QString& part) { return part.toLower(); });
}

QString InvertCase(const QString& text)
{
    QString result = text;
    for (QChar& unit : result) {
        if (unit >= u'A' && unit <= u'Z') {
            unit = QChar(static_cast<char16_t>(unit.unicode() + 32));
        } else if (unit >= u'a' && unit <= u'z') {
            unit = QChar(static_cast<char16_t>(unit.unicode() - 32));
        }
    }
    return result;
}

} // namespace model
