// SPDX-License-Identifier: MIT
//
// The two ports through which the world's changing parts reach the logic: the moment and chance. Tests fix
// them.
#pragma once

#include <QDateTime>

#include <random>

namespace model {

class Clock
{
public:
    virtual ~Clock() = default;

    // The current moment in the local zone, read anew at each call.
    virtual QDateTime Now() const { return QDateTime::currentDateTime(); }
};

class RandomSource
{
public:
    virtual ~RandomSource() = default;

    // Begins a new sequence, taken from the clock. Two calls within one tick of the clock still differ.
    virtual void Reseed();

    // Uniform in [0, 1).
    virtual double Next();

private:
    std::mt19937_64 generator_;
    quint64 reseedCount_ = 0;
};

} // namespace model
