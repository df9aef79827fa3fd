#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

namespace quenby {

/// The meaning of one physical key for the HUD: a top-row digit 1–9, a letter A–Z, Escape, or
/// anything else.
class HUDKey {
public:
  enum class Kind : std::uint8_t { number, letter, escape, other };

  [[nodiscard]] static constexpr HUDKey number(int digit) { return {Kind::number, digit, 0}; }
  /// `letter` is upper case, 'A'–'Z'.
  [[nodiscard]] static constexpr HUDKey letter(char letter) { return {Kind::letter, 0, letter}; }
  [[nodiscard]] static constexpr HUDKey escape() { return {Kind::escape, 0, 0}; }
  [[nodiscard]] static constexpr HUDKey other() { return {Kind::other, 0, 0}; }

  [[nodiscard]] constexpr Kind kind() const { return kind_; }
  /// The digit of a `number` key, 0 otherwise.
  [[nodiscard]] constexpr int digit() const { return digit_; }
  /// The letter of a `letter` key, '\0' otherwise.
  [[nodiscard]] constexpr char letter() const { return letter_; }

  friend constexpr bool operator==(const HUDKey&, const HUDKey&) = default;

private:
  constexpr HUDKey(Kind kind, int digit, char letter)
      : kind_(kind), digit_(digit), letter_(letter) {}

  Kind kind_;
  int digit_;
  char letter_;
};

} // namespace quenby

template <> struct std::hash<quenby::HUDKey> {
  std::size_t operator()(const quenby::HUDKey& key) const noexcept {
    return (static_cast<std::size_t>(key.kind()) << 16) ^
           (static_cast<std::size_t>(key.digit()) << 8) ^ static_cast<unsigned char>(key.letter());
  }
};
