#include "shortcuts/mapping/MappingQuarantineError.hpp"

#include "shortcuts/mapping/KeyboardMappingStoreTexts.hpp"

namespace quenby {

std::string_view MappingQuarantineError::idSuffix() const {
  switch (kind) {
  case Kind::backupFailed:
    return "backup";
  case Kind::resetFailed:
    return "reset";
  case Kind::operation:
    return "operation";
  }
  return "operation";
}

std::string MappingQuarantineError::description(const Localizer& localizer) const {
  switch (kind) {
  case Kind::backupFailed:
    return localizer.localized(kMappingBackupNotKeptText);
  case Kind::resetFailed:
    return localizer.localized(kMappingResetNotKeptText);
  case Kind::operation:
    return localizer.localized(kMappingBackupKeyTakenText);
  }
  return localizer.localized(kMappingBackupKeyTakenText);
}

} // namespace quenby
