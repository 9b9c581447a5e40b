// SPDX-License-Identifier: MIT
#include "model/Ports.h"

#include <chrono>

namespace model {

void RandomSource::Reseed()
{
    const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
    // The count keeps two seeds of one tick apart; the multiplier spreads it over all bits.
    generator_.seed(static_cast<quint64>(ticks) ^ (++reseedCount_ * 0x9E3779B97F4A7C15ULL));
}

double RandomSource::Next()
{
    // The upper 53 bits as a fraction: every result is below 1.
    return static_cast<double>(generator_() >> 11) * 0x1.0p-53;
}

} // namespace model
