// SPDX-License-Identifier: MIT
//
// A clock that stands at one moment, and chance that follows a given sequence.
#pragma once

#include "model/Ports.h"

#include <utility>
#include <vector>

namespace testing_support {

struct FixedClock final : model::Clock
{
    QDateTime Now() const override { return now; }

    QDateTime now{QDate(2026, 11, 14), QTime(23, 22, 59)};
};

struct FixedRandom final : model::RandomSource
{
    explicit FixedRandom(std::vector<double> chance = {0}) : sequence(std::move(chance)) {}

    void Reseed() override { ++reseeds; }
    double Next() override { return sequence[next++ % sequence.size()]; }

    std::vector<double> sequence;
    std::size_t next = 0;
    int reseeds = 0;
};

} // namespace testing_support
