// Narrowing a number without overflow.
#pragma once

#include <limits>

/// The value of the type `To` nearest to `number`, which must not be NaN.
template <typename To, typename From> constexpr To saturated(From number)
{
    using Limits = std::numeric_limits<To>;
    if (number <= From(Limits::min()))
        return Limits::min();
    return number >= From(Limits::max()) ? Limits::max() : To(number);
}
