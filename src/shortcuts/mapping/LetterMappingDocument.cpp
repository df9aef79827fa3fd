#include "shortcuts/mapping/LetterMappingDocument.hpp"

#include <algorithm>
#include <cctype>
#include <nlohmann/json.hpp>
#include <optional>
#include <set>
#include <string>

namespace quenby {
namespace {

/// True when no array or object in `bytes` opens deeper than `limit`. Brackets inside strings
/// do not count; wherever this scan and the parser could disagree, the parser has already
/// refused the text.
bool nestsWithin(const PropertyListValue::Data& bytes, std::size_t limit) {
  std::size_t depth = 0;
  bool inString = false;
  bool escaped = false;
  for (const auto byte : bytes) {
    if (inString) {
      if (escaped) {
        escaped = false;
      } else if (byte == '\\') {
        escaped = true;
      } else if (byte == '"') {
        inString = false;
      }
    } else if (byte == '"') {
      inString = true;
    } else if (byte == '[' || byte == '{') {
      if (++depth > limit) {
        return false;
      }
    } else if ((byte == ']' || byte == '}') && depth > 0) {
      --depth;
    }
  }
  return true;
}

const std::string* stringMember(const nlohmann::json& object, const char* key) {
  const auto found = object.find(key);
  return found != object.end() && found->is_string() ? found->get_ptr<const std::string*>()
                                                     : nullptr;
}

std::string lowercased(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return lower;
}

} // namespace

Expected<std::vector<LetterMappingRecord::Fields>, PersistenceFormatError>
LetterMappingDocument::decode(const PropertyListValue::Data& bytes) {
  if (!nestsWithin(bytes, kMaximumDepth)) {
    return Unexpected{PersistenceFormatError::tooDeep};
  }
  const auto document = nlohmann::json::parse(bytes.begin(), bytes.end(), nullptr, false);
  if (document.is_discarded()) {
    return Unexpected{PersistenceFormatError::notJSON};
  }
  if (!document.is_array()) {
    return Unexpected{PersistenceFormatError::wrongShape};
  }
  std::vector<LetterMappingRecord::Fields> records;
  records.reserve(document.size());
  for (const auto& object : document) {
    if (!object.is_object()) {
      return Unexpected{PersistenceFormatError::wrongShape};
    }
    const auto* letter = stringMember(object, "letter");
    const auto* bundleIdentifier = stringMember(object, "bundleIdentifier");
    const auto* displayName = stringMember(object, "displayName");
    const auto* lastKnownURL = stringMember(object, "lastKnownURL");
    if (!letter || !bundleIdentifier || !displayName || !lastKnownURL) {
      return Unexpected{PersistenceFormatError::wrongShape};
    }
    auto& record = records.emplace_back(LetterMappingRecord::Fields{
        .letter = *letter,
        .bundleIdentifier = *bundleIdentifier,
        .displayName = *displayName,
        .lastKnownURL = *lastKnownURL,
        .catalogResolvedURL = std::nullopt,
    });
    // Absent and null both mean "not known"; any other type is not ours.
    if (const auto found = object.find("catalogResolvedURL");
        found != object.end() && !found->is_null()) {
      if (!found->is_string()) {
        return Unexpected{PersistenceFormatError::wrongShape};
      }
      record.catalogResolvedURL = found->get<std::string>();
    }
  }
  return records;
}

Expected<LetterMappingDocument::Normalized, PersistenceFormatError>
LetterMappingDocument::normalize(const std::vector<LetterMappingRecord::Fields>& decoded) {
  Normalized result;
  result.records.reserve(decoded.size());
  for (const auto& fields : decoded) {
    auto record = LetterMappingRecord::normalized(fields);
    if (!record) {
      return Unexpected{PersistenceFormatError::invalidRecord};
    }
    result.changed = result.changed || !record->isSpelledBy(fields);
    result.records.push_back(std::move(*record));
  }
  const auto byLetter = [](const LetterMappingRecord& a, const LetterMappingRecord& b) {
    return a.letter < b.letter;
  };
  if (!std::is_sorted(result.records.begin(), result.records.end(), byLetter)) {
    result.changed = true;
    std::stable_sort(result.records.begin(), result.records.end(), byLetter);
  }
  std::set<char> seenLetters;
  std::set<std::string> seenApplications;
  const auto dropped = std::remove_if(
      result.records.begin(), result.records.end(), [&](const LetterMappingRecord& record) {
        // A record dropped for its application still claims its letter.
        return !seenLetters.insert(record.letter).second ||
               !seenApplications.insert(lowercased(record.bundleIdentifier)).second;
      });
  if (dropped != result.records.end()) {
    result.changed = true;
    result.records.erase(dropped, result.records.end());
  }
  return result;
}

Expected<LetterMappingDocument::Normalized, PersistenceFormatError>
LetterMappingDocument::read(const PropertyListValue::Data& bytes) {
  const auto decoded = decode(bytes);
  if (!decoded) {
    return Unexpected{decoded.error()};
  }
  return normalize(*decoded);
}

PropertyListValue::Data
LetterMappingDocument::encode(const std::vector<LetterMappingRecord>& records) {
  // Keys in the record's field order, as the document has always been written.
  auto document = nlohmann::ordered_json::array();
  for (const auto& record : records) {
    const auto fields = record.fields();
    nlohmann::ordered_json object{
        {"letter", fields.letter},
        {"bundleIdentifier", fields.bundleIdentifier},
        {"displayName", fields.displayName},
        {"lastKnownURL", fields.lastKnownURL},
    };
    if (fields.catalogResolvedURL) {
      object["catalogResolvedURL"] = *fields.catalogResolvedURL;
    }
    document.push_back(std::move(object));
  }
  // Names read from bundles are not always valid UTF-8; replace rather than throw.
  const auto text = document.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
  return {text.begin(), text.end()};
}

} // namespace quenby
