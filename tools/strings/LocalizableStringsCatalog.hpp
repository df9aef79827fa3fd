#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quenby {

/// One text as resources/en.lproj/Localizable.strings holds it.
struct LocalizableString {
  std::string english;
  std::string comment;

  bool operator==(const LocalizableString&) const = default;
};

/// Texts by key; the file lists them in this order.
using LocalizableStrings = std::map<std::string, LocalizableString>;

/// The texts the sources declare, and what kept some declaration from being read.
struct Scan {
  LocalizableStrings strings;
  std::vector<std::string> problems; ///< Each starts with "file:line: ".
};

/// Adds to `scan` every `constexpr LocalizedText kName{"key", "English", "comment"}` (or `= {…}`)
/// in `source`, reading the literals as the compiler would. A constexpr LocalizedText in any other
/// shape, or a key declared twice with different texts, is a problem: the file could not hold it.
/// `name` names the file in problems.
void scanSource(std::string_view source, const std::string& name, Scan& scan);

/// Scans every .hpp, .h, .cpp and .mm file under `root`/src, in path order.
Scan scanSourceTree(const std::filesystem::path& root);

/// resources/en.lproj/Localizable.strings under `root`.
std::filesystem::path stringsFilePath(const std::filesystem::path& root);

/// The file exactly as the generator writes it: a header, then each entry's comment and
/// `"key" = "English";`, sorted by key.
std::string renderStringsFile(const LocalizableStrings& strings);

/// Reads `/* comment */ "key" = "value";` entries, a comment belonging to the entry after it.
/// nullopt when the text is not made of such entries.
std::optional<LocalizableStrings> parseStringsFile(std::string_view text);

/// One line per key whose text or comment differs, is declared but missing from the file, or is
/// in the file but declared nowhere.
std::vector<std::string> differences(const LocalizableStrings& declared,
                                     const LocalizableStrings& file);

} // namespace quenby
