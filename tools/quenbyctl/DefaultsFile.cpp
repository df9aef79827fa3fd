#include "quenbyctl/DefaultsFile.hpp"

#include "base/PosixFileSystem.hpp"
#include "data/usage/UsageAnalyticsStore.hpp"
#include "shortcuts/mapping/LetterMappingDocument.hpp"

#include <cstdlib>

namespace quenby {
namespace {

/// Far larger than any preferences domain of ours: 26 letters and 90 days of counts.
constexpr std::uint64_t kMaximumDefaultsBytes = 64ULL * 1024 * 1024;
#ifdef __APPLE__
constexpr std::string_view kBundleIdentifier = "com.brimfold.Quenby";
#endif

/// "an array", "a string": the kind of value as a sentence names it.
std::string kindWithArticle(PropertyListValue::Kind kind) {
  const std::string name(PropertyListValue::kindName(kind));
  const bool vowel =
      !name.empty() && std::string_view("aeiou").find(name.front()) != std::string_view::npos;
  return (vowel ? "an " : "a ") + name;
}

} // namespace

std::string_view DefaultsFile::describe(PersistenceFormatError error) {
  switch (error) {
  case PersistenceFormatError::notJSON:
    return "is not JSON";
  case PersistenceFormatError::tooDeep:
    return "is nested too deeply to be letter mappings";
  case PersistenceFormatError::wrongShape:
    return "is not an array of letter-mapping records";
  case PersistenceFormatError::invalidRecord:
    break;
  }
  return "holds a letter-mapping record that cannot be repaired";
}

std::optional<std::string> DefaultsFile::standardPath() {
#ifdef __APPLE__
  if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0') {
    return std::string(home) + "/Library/Preferences/" + std::string(kBundleIdentifier) + ".plist";
  }
#endif
  return std::nullopt;
}

std::variant<DefaultsFile, std::string>
DefaultsFile::read(const std::optional<std::string>& requested,
                   const PropertyListDecoding& decoder) {
  const auto standard = requested ? std::nullopt : standardPath();
  if (!requested && !standard) {
    return "--defaults FILE is needed here: only a Mac has Quenby's own preferences to read";
  }
  const std::string& path = requested ? *requested : *standard;
  const PosixFileSystem fileSystem;
  const auto bytes = fileSystem.readFile(path, kMaximumDefaultsBytes);
  if (!bytes) {
    const FileAttributes attributes = fileSystem.attributes(path);
    if (!attributes.exists) {
      return "cannot read " + path + ": no such file";
    }
    if (attributes.isDirectory) {
      return "cannot read " + path + ": it is a folder, not a property list";
    }
    if (attributes.size.value_or(0) > kMaximumDefaultsBytes) {
      return "cannot read " + path + ": larger than any preferences file (64 MB)";
    }
    return "cannot read " + path + ": permission denied or unreadable";
  }
  auto decoded = decoder.decode(*bytes);
  if (!decoded) {
    return path + " is not a property list: " + decoded.error().message;
  }
  if (decoded->dictionary() == nullptr) {
    return path + " holds " + kindWithArticle(decoded->kind()) +
           ", not a dictionary of preferences";
  }
  return DefaultsFile(path, std::move(decoded).value());
}

std::string DefaultsFile::problem(std::string_view key, std::string_view what) const {
  return path_ + ": \"" + std::string(key) + "\" " + std::string(what);
}

std::variant<StoredUsageState, std::string> DefaultsFile::usage() const {
  const auto key = UsageAnalyticsStore::kStorageKey;
  const PropertyListValue* stored = domain_.find(key);
  if (stored == nullptr) {
    return StoredUsageState{};
  }
  const auto* bytes = stored->data();
  if (bytes == nullptr) {
    return problem(key, "holds " + kindWithArticle(stored->kind()) + ", not data");
  }
  auto decoded = StoredUsageState::decode(
      std::string_view(reinterpret_cast<const char*>(bytes->data()), bytes->size()));
  if (!decoded) {
    if (const auto version = decoded.error().unsupportedVersion) {
      return problem(key, "has format version " + std::to_string(*version) +
                              ", newer than this tool reads");
    }
    return problem(key, "is not a readable usage analytics document");
  }
  return std::move(decoded).value();
}

std::variant<std::vector<LetterMappingRecord>, std::string> DefaultsFile::letters() const {
  const auto key = LetterMappingDocument::kKey;
  const PropertyListValue* stored = domain_.find(key);
  if (stored == nullptr) {
    return std::vector<LetterMappingRecord>{};
  }
  const auto* bytes = stored->data();
  if (bytes == nullptr) {
    return problem(key, "holds " + kindWithArticle(stored->kind()) + ", not data");
  }
  auto document = LetterMappingDocument::read(*bytes);
  if (!document) {
    return problem(key, describe(document.error()));
  }
  return std::move(document->records);
}

} // namespace quenby
