#pragma once

#include "base/Expected.hpp"
#include "base/Localizer.hpp"
#include "base/PropertyListValue.hpp"
#include "shortcuts/mapping/LetterMappingRecord.hpp"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace quenby {

/// A file of letter mappings as Export writes it (the stored document's JSON array), read
/// record by record so that one bad record costs only itself. Records are repaired as stored
/// ones are (a lower-case letter, blanks around names); of two records for one letter the first
/// in letter order stays, and an application on several letters keeps its first letter.
class LetterMappingImport {
public:
  /// Why a whole file was refused.
  enum class FileProblem { unreadable, notJSON, notList };

  /// Why one record was skipped.
  struct Rejection {
    enum class Reason {
      noLetter,
      notALetter,
      noBundleIdentifier,
      noDisplayName,
      notAnApplication,
      duplicateLetter,
      duplicateApplication,
    };

    /// Counted from 1, in file order.
    std::size_t record = 0;
    /// The letter as the file spells it, when it spells one.
    std::optional<std::string> letter;
    Reason reason = Reason::noLetter;
    /// For duplicates: the record that keeps the letter or the application, and its name.
    std::size_t earlierRecord = 0;
    std::string applicationName;

    /// "Record 3 (letter "AA"): not a letter from A to Z".
    [[nodiscard]] std::string message(const Localizer& localizer) const;

    friend bool operator==(const Rejection&, const Rejection&) = default;
  };

  /// The records to apply, in letter order, and those skipped, in file order.
  struct Records {
    std::vector<LetterMappingRecord> accepted;
    std::vector<Rejection> rejected;
  };

  /// Refuses a file that is not a JSON array of objects; otherwise sorts its records.
  [[nodiscard]] static Expected<Records, FileProblem> read(const PropertyListValue::Data& bytes);
  /// Why the file was refused, in words.
  [[nodiscard]] static std::string message(FileProblem problem, const Localizer& localizer);
};

} // namespace quenby
