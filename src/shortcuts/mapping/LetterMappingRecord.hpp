#pragma once

#include "base/FileURL.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace quenby {

/// One stored letter mapping, as the user defaults keep it once repaired: an upper-case letter,
/// a non-empty bundle identifier and display name, and the locations of an ".app" bundle.
struct LetterMappingRecord {
  /// A record's fields exactly as a stored document spelled them, before any repair.
  struct Fields {
    std::string letter;
    std::string bundleIdentifier;
    std::string displayName;
    std::string lastKnownURL;
    std::optional<std::string> catalogResolvedURL;

    friend bool operator==(const Fields&, const Fields&) = default;
  };

  char letter = 'A';
  std::string bundleIdentifier;
  std::string displayName;
  FileURL lastKnownURL;
  /// Where the application catalog last found the bundle; absent when unknown.
  std::optional<FileURL> catalogResolvedURL;

  /// The key that `text` names once upper-cased, or absent unless that is exactly one of A–Z:
  /// "a" gives 'A'; "é", "AB" and "" give nothing. Letters whose upper case is an ASCII letter
  /// count too (dotless "ı" gives 'I'), as the system's upper-casing has it.
  [[nodiscard]] static std::optional<char> normalizedLetter(std::string_view text);
  /// `text` without white space or line breaks (Unicode's, not only ASCII's) at either end.
  [[nodiscard]] static std::string_view trimmed(std::string_view text);

  /// The repaired record, or absent when `fields` cannot be repaired: a bad letter, an empty
  /// identifier or name, a last-known location that is not a file URL of an ".app" bundle. A
  /// catalog location that is not one is dropped instead.
  [[nodiscard]] static std::optional<LetterMappingRecord> normalized(const Fields& fields);
  /// True when `fields` already say exactly what this record says, so nothing needs writing
  /// back (two spellings of one location count as the same).
  [[nodiscard]] bool isSpelledBy(const Fields& fields) const;
  /// The record as a document spells it.
  [[nodiscard]] Fields fields() const;

  friend bool operator==(const LetterMappingRecord&, const LetterMappingRecord&) = default;
};

} // namespace quenby
