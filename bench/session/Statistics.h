// What a row of measurements says.
#pragma once

#include <algorithm>
#include <vector>

using Samples = std::vector<double>;

/// The sample below which the share `part` of the others lies; 0 without samples.
inline double quantile(Samples samples, double part)
{
    if (samples.empty())
        return 0;
    const auto place = samples.begin() + std::ptrdiff_t(part * double(samples.size() - 1) + 0.5);
    std::nth_element(samples.begin(), place, samples.end());
    return *place;
}

inline double median(const Samples &samples)
{
    return quantile(samples, 0.5);
}
