#include "ui/editor/LetterMappingImport.hpp"

#include "base/StringFormatter.hpp"
#include "shortcuts/mapping/LetterMappingDocument.hpp"
#include "ui/editor/MappingEditorTexts.hpp"

#include <algorithm>
#include <cctype>
#include <map>
#include <nlohmann/json.hpp>

namespace quenby {
namespace {

using Reason = LetterMappingImport::Rejection::Reason;

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

/// The first thing wrong with `object`, checked in the order a person reads a record.
std::optional<Reason> problem(const nlohmann::json& object) {
  const auto* letter = stringMember(object, "letter");
  if (letter == nullptr || LetterMappingRecord::trimmed(*letter).empty()) {
    return Reason::noLetter;
  }
  if (!LetterMappingRecord::normalizedLetter(*letter)) {
    return Reason::notALetter;
  }
  const auto* bundleIdentifier = stringMember(object, "bundleIdentifier");
  if (bundleIdentifier == nullptr || LetterMappingRecord::trimmed(*bundleIdentifier).empty()) {
    return Reason::noBundleIdentifier;
  }
  const auto* displayName = stringMember(object, "displayName");
  if (displayName == nullptr || LetterMappingRecord::trimmed(*displayName).empty()) {
    return Reason::noDisplayName;
  }
  return std::nullopt;
}

} // namespace

Expected<LetterMappingImport::Records, LetterMappingImport::FileProblem>
LetterMappingImport::read(const PropertyListValue::Data& bytes) {
  // The stored document's reader knows JSON from not-JSON and refuses absurd nesting before
  // parsing; its other refusals concern single records, which are judged here one by one.
  const auto document = LetterMappingDocument::decode(bytes);
  if (!document && document.error() != PersistenceFormatError::wrongShape) {
    return Unexpected{FileProblem::notJSON};
  }
  const auto json = nlohmann::json::parse(bytes.begin(), bytes.end(), nullptr, false);
  if (json.is_discarded()) {
    return Unexpected{FileProblem::notJSON};
  }
  if (!json.is_array() ||
      !std::all_of(json.begin(), json.end(), [](const auto& item) { return item.is_object(); })) {
    return Unexpected{FileProblem::notList};
  }

  struct Candidate {
    std::size_t record;
    LetterMappingRecord value;
  };
  Records result;
  std::vector<Candidate> candidates;
  std::size_t number = 0;
  for (const auto& object : json) {
    ++number;
    const auto* letter = stringMember(object, "letter");
    Rejection rejection;
    rejection.record = number;
    if (letter != nullptr) {
      rejection.letter = *letter;
    }
    if (const auto reason = problem(object)) {
      rejection.reason = *reason;
      result.rejected.push_back(std::move(rejection));
      continue;
    }
    LetterMappingRecord::Fields fields{
        .letter = *letter,
        .bundleIdentifier = *stringMember(object, "bundleIdentifier"),
        .displayName = *stringMember(object, "displayName"),
        .lastKnownURL = "",
        .catalogResolvedURL = std::nullopt,
    };
    if (const auto* location = stringMember(object, "lastKnownURL")) {
      fields.lastKnownURL = *location;
    }
    if (const auto* location = stringMember(object, "catalogResolvedURL")) {
      fields.catalogResolvedURL = *location;
    }
    auto record = LetterMappingRecord::normalized(fields);
    if (!record) {
      // Letter, identifier and name passed above: only the location is left to blame.
      rejection.reason = Reason::notAnApplication;
      result.rejected.push_back(std::move(rejection));
      continue;
    }
    candidates.push_back({number, std::move(*record)});
  }

  std::stable_sort(candidates.begin(), candidates.end(),
                   [](const auto& a, const auto& b) { return a.value.letter < b.value.letter; });
  std::map<char, std::size_t> letterOwners;
  std::map<std::string, const Candidate*> applicationOwners;
  for (const auto& candidate : candidates) {
    Rejection rejection;
    rejection.record = candidate.record;
    rejection.letter = std::string(1, candidate.value.letter);
    if (const auto [owner, isNew] = letterOwners.emplace(candidate.value.letter, candidate.record);
        !isNew) {
      rejection.reason = Reason::duplicateLetter;
      rejection.earlierRecord = owner->second;
      result.rejected.push_back(std::move(rejection));
      continue;
    }
    const auto [owner, isNew] =
        applicationOwners.emplace(lowercased(candidate.value.bundleIdentifier), &candidate);
    if (!isNew) {
      rejection.reason = Reason::duplicateApplication;
      rejection.earlierRecord = owner->second->record;
      rejection.applicationName = owner->second->value.displayName;
      result.rejected.push_back(std::move(rejection));
      continue;
    }
    result.accepted.push_back(candidate.value);
  }
  std::stable_sort(result.rejected.begin(), result.rejected.end(),
                   [](const auto& a, const auto& b) { return a.record < b.record; });
  return result;
}

std::string LetterMappingImport::Rejection::message(const Localizer& localizer) const {
  std::string why;
  switch (reason) {
  case Reason::noLetter:
    why = localizer.localized(kMappingEditorNoLetter);
    break;
  case Reason::notALetter:
    why = localizer.localized(kMappingEditorNotALetter);
    break;
  case Reason::noBundleIdentifier:
    why = localizer.localized(kMappingEditorNoBundleIdentifier);
    break;
  case Reason::noDisplayName:
    why = localizer.localized(kMappingEditorNoDisplayName);
    break;
  case Reason::notAnApplication:
    why = localizer.localized(kMappingEditorNotAnApplication);
    break;
  case Reason::duplicateLetter:
    why = formatLocalized(localizer.localized(kMappingEditorDuplicateLetter),
                          {static_cast<long long>(earlierRecord)});
    break;
  case Reason::duplicateApplication:
    why = formatLocalized(localizer.localized(kMappingEditorDuplicateApplication),
                          {applicationName, static_cast<long long>(earlierRecord)});
    break;
  }
  const auto position = static_cast<long long>(record);
  if (letter && !LetterMappingRecord::trimmed(*letter).empty()) {
    return formatLocalized(localizer.localized(kMappingEditorRejectedRecordWithLetter),
                           {position, *letter, why});
  }
  return formatLocalized(localizer.localized(kMappingEditorRejectedRecord), {position, why});
}

std::string LetterMappingImport::message(FileProblem problem, const Localizer& localizer) {
  switch (problem) {
  case FileProblem::unreadable:
    return localizer.localized(kMappingEditorImportUnreadable);
  case FileProblem::notJSON:
    return localizer.localized(kMappingEditorImportNotJSON);
  case FileProblem::notList:
    return localizer.localized(kMappingEditorImportNotList);
  }
  return localizer.localized(kMappingEditorImportUnreadable);
}

} // namespace quenby
