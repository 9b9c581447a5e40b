// SPDX-License-Identifier: MIT
#include "platform/NameBytes.h"

#include <algorithm>
#include <array>
#include <utility>

namespace platform {

namespace {

constexpr char16_t EscapeBase = 0xDC00; // U+DC80 to U+DCFF stand for the bytes 0x80 to 0xFF

unsigned char ByteAt(QByteArrayView bytes, qsizetype at)
{
    return static_cast<unsigned char>(bytes[at]);
}

// Length of the valid UTF-8 sequence of two to four bytes at `at`, or 0. Table 3-7 of the Unicode Standard.
int SequenceLength(QByteArrayView bytes, qsizetype at)
{
    struct Form
    {
        unsigned char firstLow, firstHigh, secondLow, secondHigh;
        int length;
    };
    static constexpr Form forms[] = {
        {0xC2, 0xDF, 0x80, 0xBF, 2}, {0xE0, 0xE0, 0xA0, 0xBF, 3}, {0xE1, 0xEC, 0x80, 0xBF, 3},
        {0xED, 0xED, 0x80, 0x9F, 3}, {0xEE, 0xEF, 0x80, 0xBF, 3}, {0xF0, 0xF0, 0x90, 0xBF, 4},
        {0xF1, 0xF3, 0x80, 0xBF, 4}, {0xF4, 0xF4, 0x80, 0x8F, 4},
    };
    const unsigned char first = ByteAt(bytes, at);
    for (const Form& form : forms) {
        if (first < form.firstLow || first > form.firstHigh) {
            continue;
        }
        if (form.length > bytes.size() - at) {
            return 0;
        }
        const unsigned char second = ByteAt(bytes, at + 1);
        bool isValid = second >= form.secondLow && second <= form.secondHigh;
        for (int i = 2; i < form.length; ++i) {
            isValid = isValid && (ByteAt(bytes, at + i) & 0xC0) == 0x80;
        }
        return isValid ? form.length : 0;
    }
    return 0;
}

bool IsAscii(QByteArrayView bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<signed char>(c) >= 0; });
}

// The code point that a valid sequence of `length` bytes stands for.
char32_t CodePointAt(QByteArrayView bytes, qsizetype at, int length)
{
    static constexpr std::array<unsigned char, 5> firstBits = {0, 0x7F, 0x1F, 0x0F, 0x07};
    char32_t code = ByteAt(bytes, at) & firstBits[static_cast<std::size_t>(length)];
    for (int i = 1; i < length; ++i) {
        code = code << 6 | (ByteAt(bytes, at + i) & 0x3F);
    }
    return code;
}

// Decodes by hand, since Qt's decoder drops a byte order mark, which is part of a name.
QString FromMixedBytes(QByteArrayView bytes)
{
    QString text;
    text.reserve(bytes.size());
    for (qsizetype at = 0; at < bytes.size();) {
        const int length = ByteAt(bytes, at) < 0x80 ? 1 : SequenceLength(bytes, at);
        if (length == 0) {
            text += QChar(static_cast<char16_t>(EscapeBase + ByteAt(bytes, at)));
            ++at;
            continue;
        }
        text += QStringView(QChar::fromUcs4(CodePointAt(bytes, at, length)));
        at += length;
    }
    return text;
}

bool IsEscape(QChar unit)
{
    return unit.unicode() >= EscapeBase + 0x80 && unit.unicode() <= EscapeBase + 0xFF;
}

} // namespace

QString FromBytes(QByteArrayView bytes)
{
    return IsAscii(bytes) ? QString::fromLatin1(bytes) : FromMixedBytes(bytes);
}

QByteArray ToBytes(const QString& text)
{
    QByteArray bytes;
    qsizetype plain = 0; // start of the stretch that isn't encoded yet
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar unit = text.at(at);
        if (!unit.isSurrogate()) {
            continue;
        }
        if (unit.isHighSurrogate() && at + 1 < text.size() && text.at(at + 1).isLowSurrogate()) {
            ++at;
            continue;
        }
        bytes += QStringView(text).sliced(plain, at - plain).toUtf8();
        bytes += IsEscape(unit) ? QByteArray(1, static_cast<char>(unit.unicode() - EscapeBase))
                                : QByteArrayLiteral("\xEF\xBF\xBD");
        plain = at + 1;
    }
    return plain == 0 ? text.toUtf8() : bytes + QStringView(text).sliced(plain).toUtf8();
}

std::optional<QByteArray> ToPath(const QString& text)
{
    QByteArray bytes = ToBytes(text);
    return bytes.contains('\0') ? std::nullopt : std::optional(std::move(bytes));
}

} // namespace platform
