#include "shortcuts/dock/SystemDockPreferenceReader.hpp"

namespace quenby {

SystemDockPreferenceReader::SystemDockPreferenceReader(
    std::function<bool()> synchronize,
    std::function<std::optional<PropertyListValue>()> copyPersistentApps)
    : synchronize_(std::move(synchronize)), copyPersistentApps_(std::move(copyPersistentApps)) {}

Expected<DockPersistentApplications, DockPreferenceReaderError>
SystemDockPreferenceReader::readPersistentApplications() {
  if (!synchronize_ || !synchronize_()) {
    return Unexpected{DockPreferenceReaderError::synchronizationFailed};
  }
  std::optional<PropertyListValue> value =
      copyPersistentApps_ ? copyPersistentApps_() : std::nullopt;
  if (!value) {
    return Unexpected{DockPreferenceReaderError::missingPersistentApplications};
  }
  auto validated = DockPersistentApplications::validated(std::move(*value));
  if (!validated) {
    return Unexpected{DockPreferenceReaderError::invalidPersistentApplications};
  }
  return std::move(*validated);
}

} // namespace quenby
