#pragma once

#include "base/ObservationToken.hpp"
#include "shortcuts/mapping/KeyboardMappingSnapshot.hpp"

#include <functional>

namespace quenby {

/// The current digit and letter mappings, and word of each new snapshot. Main thread only.
class KeyboardMappingSnapshotProviding {
public:
  using SnapshotHandler = std::function<void(const KeyboardMappingSnapshot&)>;

  virtual ~KeyboardMappingSnapshotProviding() = default;
  [[nodiscard]] virtual const KeyboardMappingSnapshot& snapshot() const = 0;
  /// `handler` receives every new snapshot until the token ends.
  [[nodiscard]] virtual ObservationToken observe(SnapshotHandler handler) = 0;
};

/// The inert provider: an empty snapshot that never changes.
class InertKeyboardMappingSnapshotProvider final : public KeyboardMappingSnapshotProviding {
public:
  [[nodiscard]] const KeyboardMappingSnapshot& snapshot() const override { return snapshot_; }
  [[nodiscard]] ObservationToken observe(SnapshotHandler) override { return {}; }

private:
  KeyboardMappingSnapshot snapshot_;
};

} // namespace quenby
