// Narrowing a number without overflow.
#pragma once

#include <QtGlobal>

#include <limits>

/// The int nearest to `number`.
constexpr int saturated(qint64 number)
{
    using Limits = std::numeric_limits<int>;
    return int(number < Limits::min() ? Limits::min()
            : number > Limits::max()  ? Limits::max()
                                      : number);
}
