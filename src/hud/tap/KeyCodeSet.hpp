#pragma once

#include <bitset>
#include <cstdint>
#include <limits>

namespace quenby {

/// A set of 16-bit virtual key codes with constant-time, allocation-free updates, for the
/// bookkeeping that runs on every key event.
class KeyCodeSet {
public:
  [[nodiscard]] bool contains(std::uint16_t keyCode) const { return bits_.test(keyCode); }
  void insert(std::uint16_t keyCode) { bits_.set(keyCode); }
  /// Whether it was there.
  bool erase(std::uint16_t keyCode) {
    const bool present = bits_.test(keyCode);
    bits_.reset(keyCode);
    return present;
  }
  void clear() { bits_.reset(); }
  [[nodiscard]] bool empty() const { return bits_.none(); }

private:
  std::bitset<std::numeric_limits<std::uint16_t>::max() + std::size_t{1}> bits_;
};

} // namespace quenby
