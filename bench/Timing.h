// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>

#include <algorithm>
#include <functional>
#include <vector>

namespace bench {

inline double Median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// In milliseconds.
inline double TimeOf(const std::function<void()>& what)
{
    QElapsedTimer timer;
    timer.start();
    what();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

} // namespace bench
