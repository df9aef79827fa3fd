#pragma once

#include "base/PropertyListDecoding.hpp"
#include "base/PropertyListValue.hpp"
#include "data/usage/StoredUsageState.hpp"
#include "shortcuts/mapping/LetterMappingDocument.hpp"
#include "shortcuts/mapping/LetterMappingRecord.hpp"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace quenby {

/// A copy of the program's preferences domain, read from a property-list file and only read:
/// nothing here writes, quarantines or migrates, whatever the documents hold. A missing document
/// reads as an empty one; one that cannot be read is an error naming the file and the key.
class DefaultsFile {
public:
  /// Where the app's own preferences live for the current user, or absent where there are none
  /// (any host but a Mac).
  [[nodiscard]] static std::optional<std::string> standardPath();

  /// The top-level dictionary of the file at `path`, or of the standard one when `path` is absent;
  /// or why it cannot be had.
  [[nodiscard]] static std::variant<DefaultsFile, std::string>
  read(const std::optional<std::string>& path, const PropertyListDecoding& decoder);

  /// Why a letter-mapping document is unusable, after its name: "is not JSON".
  [[nodiscard]] static std::string_view describe(PersistenceFormatError error);

  [[nodiscard]] const std::string& path() const { return path_; }
  /// The usage analytics document, or the reason it cannot be read.
  [[nodiscard]] std::variant<StoredUsageState, std::string> usage() const;
  /// The letter mappings as the store would keep them, or the reason they cannot be read.
  [[nodiscard]] std::variant<std::vector<LetterMappingRecord>, std::string> letters() const;

private:
  DefaultsFile(std::string path, PropertyListValue domain)
      : path_(std::move(path)), domain_(std::move(domain)) {}
  /// "FILE: "KEY" …", the start of every complaint about a document.
  [[nodiscard]] std::string problem(std::string_view key, std::string_view what) const;

  std::string path_;
  PropertyListValue domain_;
};

} // namespace quenby
