#pragma once

#include <cstdint>

namespace quenby {

/// Which of the two physical keys of a modifier.
enum class ModifierSide : std::uint8_t { left, right };

/// A set of sides, small enough to copy and compare on every key event.
class ModifierSideSet {
public:
  constexpr ModifierSideSet() = default;

  [[nodiscard]] constexpr bool contains(ModifierSide side) const {
    return (bits_ & bit(side)) != 0;
  }
  [[nodiscard]] constexpr bool empty() const { return bits_ == 0; }
  constexpr void insert(ModifierSide side) { bits_ |= bit(side); }
  constexpr void erase(ModifierSide side) { bits_ &= static_cast<std::uint8_t>(~bit(side)); }
  constexpr void clear() { bits_ = 0; }

  friend constexpr bool operator==(ModifierSideSet, ModifierSideSet) = default;

private:
  static constexpr std::uint8_t bit(ModifierSide side) {
    return static_cast<std::uint8_t>(1U << static_cast<unsigned>(side));
  }

  std::uint8_t bits_ = 0;
};

} // namespace quenby
