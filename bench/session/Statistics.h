// Statistics of a series of samples.
#pragma once

#include <QVector>

#include <algorithm>

using Samples = QVector<double>;

/// The quantile `part` (0 to 1) of the samples; 0 without samples.
inline double quantile(Samples samples, double part)
{
    if (samples.isEmpty())
        return 0;
    const auto place = samples.begin() + int(part * (samples.size() - 1) + 0.5);
    std::nth_element(samples.begin(), place, samples.end());
    return *place;
}

inline double median(const Samples &samples)
{
    return quantile(samples, 0.5);
}
