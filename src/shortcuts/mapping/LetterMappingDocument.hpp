#pragma once

#include "base/Expected.hpp"
#include "base/PropertyListValue.hpp"
#include "shortcuts/mapping/LetterMappingRecord.hpp"

#include <cstddef>
#include <string_view>
#include <vector>

namespace quenby {

/// Why a stored document cannot be read.
enum class PersistenceFormatError {
  /// Not JSON, or not UTF-8.
  notJSON,
  /// Nested deeper than any document of ours; not parsed at all.
  tooDeep,
  /// JSON, but not an array of objects whose fields have the expected types.
  wrongShape,
  /// A record that cannot be repaired.
  invalidRecord,
};

/// The letter mappings as the user defaults keep them: a JSON array of one object per record,
/// ordered by letter, with the keys "letter", "bundleIdentifier", "displayName", "lastKnownURL"
/// and, when known, "catalogResolvedURL" (locations as "file:" URL strings). Keys besides these
/// are ignored, as are the later duplicates of a key.
class LetterMappingDocument {
public:
  /// The main key; the version lives in its name.
  static constexpr std::string_view kKey = "letterMappings.v1";
  /// Deeper nesting is refused before parsing: a well-formed document is two levels deep, and
  /// the parser would recurse once per level.
  static constexpr std::size_t kMaximumDepth = 32;

  /// The repaired records and whether repairing changed anything worth writing back.
  struct Normalized {
    std::vector<LetterMappingRecord> records;
    bool changed = false;
  };

  /// The records exactly as `bytes` spell them.
  [[nodiscard]] static Expected<std::vector<LetterMappingRecord::Fields>, PersistenceFormatError>
  decode(const PropertyListValue::Data& bytes);
  /// Repairs every record (the first that cannot be repaired fails the whole list), orders them
  /// by letter, keeps the first record of each letter and then each application's first letter.
  [[nodiscard]] static Expected<Normalized, PersistenceFormatError>
  normalize(const std::vector<LetterMappingRecord::Fields>& decoded);
  /// `decode`, then `normalize`.
  [[nodiscard]] static Expected<Normalized, PersistenceFormatError>
  read(const PropertyListValue::Data& bytes);
  /// The document for `records`, which must already be in letter order.
  [[nodiscard]] static PropertyListValue::Data
  encode(const std::vector<LetterMappingRecord>& records);
};

} // namespace quenby
