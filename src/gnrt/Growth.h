// Slot growth shared by the runtime's lists.
#pragma once

#include <cstddef>

namespace vx {

// The capacity to grow to so that `needed` items fit: at least `step` slots more than now, or
// half the current capacity more when that is larger, so that a long run of appends costs
// amortized constant time even with the small steps the callers pass.
inline std::size_t GrownCapacity(std::size_t capacity, std::size_t needed, std::size_t step) {
    if (needed <= capacity) {
        return capacity;
    }
    std::size_t grown = capacity + (step > capacity / 2 ? step : capacity / 2);
    return grown < needed ? needed : grown;
}

}  // namespace vx
