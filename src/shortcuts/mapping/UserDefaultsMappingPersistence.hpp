#pragma once

#include "base/Expected.hpp"
#include "base/KeyValueStore.hpp"
#include "base/WallClock.hpp"
#include "shortcuts/mapping/MappingQuarantineError.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace quenby {

/// Keeps the letter mappings' document in the user defaults, and sets unreadable documents
/// aside under a time-stamped key. Every write is read back, because the defaults report
/// nothing when another process or a managed profile overrides a key.
///
/// `defaults` and `clock` must outlive it.
class UserDefaultsMappingPersistence {
public:
  /// Followed by the milliseconds since 1970 at which the data was set aside.
  static constexpr std::string_view kBackupKeyPrefix = "letterMappings.v1.corrupt.";

  UserDefaultsMappingPersistence(KeyValueStore& defaults, const WallClock& clock)
      : defaults_(defaults), clock_(clock) {}

  /// Whatever the main key holds, of any type; absent when it holds nothing.
  [[nodiscard]] std::optional<PropertyListValue> load() const;
  /// False when the defaults did not keep `document`; then the main key is as it was.
  [[nodiscard]] bool save(const PropertyListValue::Data& document);
  /// Copies `unreadable`, unchanged, under a fresh backup key, then resets the main key to
  /// `emptyDocument`. Returns the backup key. Nothing is written over an earlier copy, and the
  /// main key is left alone unless the copy was kept.
  [[nodiscard]] Expected<std::string, MappingQuarantineError>
  quarantine(const PropertyListValue& unreadable, const PropertyListValue::Data& emptyDocument);
  /// The key that a quarantine would use now.
  [[nodiscard]] std::string backupKey() const;

private:
  KeyValueStore& defaults_;
  const WallClock& clock_;
};

} // namespace quenby
