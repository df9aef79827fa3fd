#include "shortcuts/mapping/UserDefaultsMappingPersistence.hpp"

#include "shortcuts/mapping/LetterMappingDocument.hpp"

#include <chrono>

namespace quenby {

std::optional<PropertyListValue> UserDefaultsMappingPersistence::load() const {
  return defaults_.object(LetterMappingDocument::kKey);
}

bool UserDefaultsMappingPersistence::save(const PropertyListValue::Data& document) {
  const auto previous = load();
  if (defaults_.setVerified(LetterMappingDocument::kKey, document)) {
    return true;
  }
  // Put back what was there, in case the store kept something other than what was written.
  if (previous) {
    defaults_.set(LetterMappingDocument::kKey, *previous);
  } else {
    defaults_.remove(LetterMappingDocument::kKey);
  }
  return false;
}

Expected<std::string, MappingQuarantineError>
UserDefaultsMappingPersistence::quarantine(const PropertyListValue& unreadable,
                                           const PropertyListValue::Data& emptyDocument) {
  auto key = backupKey();
  if (defaults_.object(key)) {
    return Unexpected{MappingQuarantineError{MappingQuarantineError::Kind::operation, key}};
  }
  if (!defaults_.setVerified(key, unreadable)) {
    return Unexpected{MappingQuarantineError{MappingQuarantineError::Kind::backupFailed, key}};
  }
  if (!defaults_.setVerified(LetterMappingDocument::kKey, emptyDocument)) {
    return Unexpected{MappingQuarantineError{MappingQuarantineError::Kind::resetFailed, key}};
  }
  return key;
}

std::string UserDefaultsMappingPersistence::backupKey() const {
  const auto milliseconds =
      std::chrono::floor<std::chrono::milliseconds>(clock_.now().time_since_epoch()).count();
  return std::string(kBackupKeyPrefix) + std::to_string(milliseconds);
}

} // namespace quenby
