#include "shortcuts/dock/DockPreferenceReaderError.hpp"

namespace quenby {

const LocalizedText& localizedText(DockPreferenceReaderError error) {
  switch (error) {
  case DockPreferenceReaderError::synchronizationFailed:
    return kDockSyncFailedText;
  case DockPreferenceReaderError::missingPersistentApplications:
    return kDockMissingPersistentText;
  case DockPreferenceReaderError::invalidPersistentApplications:
    break;
  }
  return kDockInvalidPersistentText;
}

std::string localizedDescription(DockPreferenceReaderError error, const Localizer& localizer) {
  return localizer.localized(localizedText(error));
}

} // namespace quenby
