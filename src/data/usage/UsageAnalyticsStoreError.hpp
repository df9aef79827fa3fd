#pragma once

#include "app/ConfigurationFailure.hpp"
#include "base/Localizer.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

namespace quenby {

/// What the store was doing when a write did not take.
enum class UsageAnalyticsPersistenceOperation { load, save, prune, reset };
/// Which step of setting unreadable data aside failed: copying it to its backup key, or replacing
/// the main key with an empty document.
enum class UsageAnalyticsQuarantineStage { backup, reset };

[[nodiscard]] std::string_view operationRawValue(UsageAnalyticsPersistenceOperation operation);

/// The underlying storage error: the user defaults did not keep what was written under `key`.
struct UsageAnalyticsWriteError {
  std::string key;
  friend bool operator==(const UsageAnalyticsWriteError&,
                         const UsageAnalyticsWriteError&) = default;
};

/// A failure of the usage analytics store, as the user is told about it.
class UsageAnalyticsStoreError {
public:
  struct CorruptPayloadRecovered {
    std::string backupKey;
    friend bool operator==(const CorruptPayloadRecovered&,
                           const CorruptPayloadRecovered&) = default;
  };
  struct CorruptPayloadRecoveryFailed {
    std::string backupKey;
    UsageAnalyticsQuarantineStage stage;
    UsageAnalyticsWriteError error;
    friend bool operator==(const CorruptPayloadRecoveryFailed&,
                           const CorruptPayloadRecoveryFailed&) = default;
  };
  struct UnsupportedVersionRecovered {
    std::int64_t version;
    std::string backupKey;
    friend bool operator==(const UnsupportedVersionRecovered&,
                           const UnsupportedVersionRecovered&) = default;
  };
  struct UnsupportedVersionRecoveryFailed {
    std::int64_t version;
    std::string backupKey;
    UsageAnalyticsQuarantineStage stage;
    UsageAnalyticsWriteError error;
    friend bool operator==(const UnsupportedVersionRecoveryFailed&,
                           const UnsupportedVersionRecoveryFailed&) = default;
  };
  struct PersistenceFailed {
    UsageAnalyticsPersistenceOperation operation;
    UsageAnalyticsWriteError error;
    friend bool operator==(const PersistenceFailed&, const PersistenceFailed&) = default;
  };
  using Case = std::variant<CorruptPayloadRecovered, CorruptPayloadRecoveryFailed,
                            UnsupportedVersionRecovered, UnsupportedVersionRecoveryFailed,
                            PersistenceFailed>;

  /// From any one case, implicitly, as an enumeration case would convert.
  template <typename T>
  requires(!std::is_same_v<std::remove_cvref_t<T>, UsageAnalyticsStoreError> &&
           std::is_constructible_v<Case, T&&>) UsageAnalyticsStoreError(T&& value)
      : case_(std::forward<T>(value)) {} // NOLINT

  [[nodiscard]] const Case& value() const { return case_; }
  template <typename T> [[nodiscard]] const T* as() const { return std::get_if<T>(&case_); }

  /// The stable id under which the user is told once ("usageAnalytics.persistence.save").
  [[nodiscard]] std::string failureID() const;
  /// The short text kept for the Usage page.
  [[nodiscard]] std::string localizedDescription(const Localizer& localizer) const;
  [[nodiscard]] ConfigurationFailure configurationFailure(const Localizer& localizer) const;

  friend bool operator==(const UsageAnalyticsStoreError&,
                         const UsageAnalyticsStoreError&) = default;

private:
  Case case_;
};

} // namespace quenby
