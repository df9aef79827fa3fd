#pragma once

#include "base/FileURL.hpp"
#include "base/Localizer.hpp"

#include <string>

namespace quenby {

/// Why an assignment or a removal was refused; shown to the user by whoever asked.
struct KeyboardMappingStoreError {
  enum class Kind {
    /// `letter` is not one of A–Z in either case.
    invalidLetter,
    /// `application` is not a readable ".app" bundle.
    invalidApplication,
    /// The user defaults did not keep the change; nothing changed.
    notSaved,
  };

  [[nodiscard]] static KeyboardMappingStoreError invalidLetter(std::string letter) {
    return {Kind::invalidLetter, std::move(letter), FileURL()};
  }
  [[nodiscard]] static KeyboardMappingStoreError invalidApplication(FileURL application) {
    return {Kind::invalidApplication, "", std::move(application)};
  }
  [[nodiscard]] static KeyboardMappingStoreError notSaved() {
    return {Kind::notSaved, "", FileURL()};
  }

  Kind kind = Kind::notSaved;
  /// The key as it was asked for, for `invalidLetter`.
  std::string letter;
  /// The bundle as it was asked for, for `invalidApplication`.
  FileURL application;

  [[nodiscard]] std::string message(const Localizer& localizer) const;

  friend bool operator==(const KeyboardMappingStoreError&,
                         const KeyboardMappingStoreError&) = default;
};

} // namespace quenby
