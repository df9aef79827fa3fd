#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace quenby {

/// Where a shortcut's target comes from: a Dock position (1–9) or a letter key (A–Z).
class MappingSource {
public:
  enum class Kind { dock, letter };

  [[nodiscard]] static MappingSource dock(int position) { return {Kind::dock, position, '\0'}; }
  [[nodiscard]] static MappingSource letter(char letter) { return {Kind::letter, 0, letter}; }

  [[nodiscard]] Kind kind() const { return kind_; }
  /// The Dock position; 0 for a letter.
  [[nodiscard]] int position() const { return position_; }
  /// The letter; NUL for a Dock position.
  [[nodiscard]] char letter() const { return letter_; }
  /// "dock:3", "letter:S": the identity of a mapping made from this source.
  [[nodiscard]] std::string id() const;

  friend bool operator==(const MappingSource&, const MappingSource&) = default;

private:
  MappingSource(Kind kind, int position, char letter)
      : kind_(kind), position_(position), letter_(letter) {}

  Kind kind_;
  int position_;
  char letter_;
};

} // namespace quenby

template <> struct std::hash<quenby::MappingSource> {
  std::size_t operator()(const quenby::MappingSource& source) const noexcept;
};
