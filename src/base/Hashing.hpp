#pragma once

#include <cstddef>
#include <functional>

namespace quenby {

/// Feeds `value` into `seed`; used by the value types' hashes, which feed their fields in order.
template <typename T> void hashCombine(std::size_t& seed, const T& value) {
  seed ^= std::hash<T>{}(value) + 0x9e3779b97f4a7c15ULL + (seed << 6) + (seed >> 2);
}

} // namespace quenby
