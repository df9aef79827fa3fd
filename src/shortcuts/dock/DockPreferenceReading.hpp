#pragma once

#include "base/Expected.hpp"
#include "base/PropertyListValue.hpp"
#include "shortcuts/dock/DockPreferenceReaderError.hpp"

#include <optional>

namespace quenby {

/// The Dock's "persistent-apps" as read: an array whose every item is a dictionary. Holding the
/// shared value rather than a copy of the array keeps a read as cheap as a reference count.
class DockPersistentApplications {
public:
  /// Absent unless `value` is an array of dictionaries.
  [[nodiscard]] static std::optional<DockPersistentApplications> validated(PropertyListValue value);

  [[nodiscard]] const PropertyListValue::Array& items() const { return *value_.array(); }
  [[nodiscard]] const PropertyListValue& value() const { return value_; }

  friend bool operator==(const DockPersistentApplications&,
                         const DockPersistentApplications&) = default;

private:
  explicit DockPersistentApplications(PropertyListValue value) : value_(std::move(value)) {}

  PropertyListValue value_;
};

/// Reads the Dock's list of pinned items from its preference domain.
class DockPreferenceReading {
public:
  virtual ~DockPreferenceReading() = default;
  [[nodiscard]] virtual Expected<DockPersistentApplications, DockPreferenceReaderError>
  readPersistentApplications() = 0;
};

/// The inert reader: a Dock with nothing pinned.
class InertDockPreferenceReader final : public DockPreferenceReading {
public:
  [[nodiscard]] Expected<DockPersistentApplications, DockPreferenceReaderError>
  readPersistentApplications() override {
    return *DockPersistentApplications::validated(PropertyListValue::Array{});
  }
};

} // namespace quenby
