// SPDX-License-Identifier: MIT
//
// Running numbers, running letters and random strings: the three generators behind the tokens $Counter$,
// $AlphaCounter$ and the random ones. The state lives for a run; the options that steer it are CounterBlock
// and AlphaCounterBlock.
#pragma once

#include "actions/RenameOptions.h"
#include "model/Ports.h"
#include "platform/Conversions.h"

#include <QString>

#include <array>

namespace actions {

// True when every character is one of the 26 letters in either case; an empty text too.
bool IsAllLetters(const QString& text);

// The letter value `step` letters on: "AZ" by 1 is "BA", "Z" by 1 is "AA". `limit` is the last letter's code,
// 90 or 122. The width is that at entry: a step above 1 that overflows it on the way loses letters ("Z" by 2
// is "B"), and names rely on that. A step of 0 or less gives the value back.
QString NextAlphaValue(QString value, char16_t limit, int step);

// A string of the mask's length: # a digit, A a capital, a a small letter, N one of both or a digit, H a
// hexadecimal digit in capitals; any other character stands for itself. Reseeds at each call.
QString RandomString(const QString& mask, model::RandomSource& random);

// Where the two counters of one action stand.
struct CounterState
{
    qint32 number = 0;
    QString letters;
    char16_t limit = u'Z'; // code of the last letter, u'Z' or u'z'
};

// The counters of the ten actions that count. They live as long as the workspace, for a start that doesn't
// convert leaves the number where the last run ended.
class CounterStates
{
public:
    // Sets every counter to its start. Each conversion that fails is passed over and the others go on.
    void Reset(const RenameOptions& options);

    // REQUIRES: `kind` is one of the ten.
    CounterState& Of(model::ActionKind kind) { return states_[static_cast<std::size_t>(kind)]; }

private:
    std::array<CounterState, model::ActionKindCount> states_;
};

// A box that holds a number, converted once; a failure shows at each use.
class NumberBox
{
public:
    explicit NumberBox(const QString& text) : result_(platform::ToInt16(text)) {}

    // Throws ActionError if the text was no 16-bit integer.
    int Value() const;

private:
    platform::Int16Result result_;
};

// A counter's option set, compiled for a run: writes the values of running numbers or letters.
class CounterFormat
{
public:
    explicit CounterFormat(const CounterBlock& block);
    explicit CounterFormat(const AlphaCounterBlock& block);

    // The value of the number at which `state` stands: prefix, padding, digits (a minus counts as one),
    // suffix. Only then does the number move on by the step. Throws ActionError where a box doesn't convert,
    // padding is due with an empty pad box, or the number leaves 32 bits; the number then stays.
    QString NextNumber(CounterState& state) const;

    // The same for the letters.
    QString NextLetters(CounterState& state) const;

private:
    QString Dressed(const QString& value) const;

    NumberBox step_;
    NumberBox padTo_;
    QString padCharacter_;
    QString prefix_;
    QString suffix_;
};

} // namespace actions
