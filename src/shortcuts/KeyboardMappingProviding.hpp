#pragma once

#include "shortcuts/KeyboardMappingSnapshot.hpp"
#include "shortcuts/MappingObservationToken.hpp"

#include <functional>

namespace quenby {

/// The combined Dock and letter mappings as every shortcut consumer sees them.
class KeyboardMappingProviding {
public:
  using Handler = std::function<void(const KeyboardMappingSnapshot&)>;

  virtual ~KeyboardMappingProviding() = default;
  [[nodiscard]] virtual const KeyboardMappingSnapshot& current() const = 0;
  /// `handler` receives every later snapshot for as long as the token is held.
  [[nodiscard]] virtual MappingObservationToken observe(Handler handler) = 0;
};

/// The inert provider: an empty snapshot that never changes.
class InertKeyboardMappingProvider final : public KeyboardMappingProviding {
public:
  [[nodiscard]] const KeyboardMappingSnapshot& current() const override { return snapshot_; }
  [[nodiscard]] MappingObservationToken observe(Handler) override { return {}; }

private:
  KeyboardMappingSnapshot snapshot_;
};

} // namespace quenby
