// SPDX-License-Identifier: MIT
//
// A clock that stands at one moment, and chance that follows a given sequence.
#pragma once

#include "model/Ports.h"

#include <utility>
#include <vector>

namespace testing_support {

class FixedClock final : public model::Clock
{
public:
    QDateTime Now() const override { return now; }

    QDateTime now{QDate(2026, 11, 14), QTime(23, 22, 59)};
};

class FixedRandom final : public model::RandomSource
{
public:
    explicit FixedRandom(std::vector<double> sequence = {0}) : sequence_(std::move(sequence)) {}

    void Reseed() override { ++reseeds; }
    double Next() override { return sequence_[next_++ % sequence_.size()]; }

    int reseeds = 0;

private:
    std::vector<double> sequence_;
    std::size_t next_ = 0;
};

} // namespace testing_support
