#pragma once

#include <cstdint>
#include <functional>

namespace quenby {

/// The system's global hot keys, as the digit shortcuts use them. Statuses are the system's
/// codes: 0 is success. Main thread only.
class OptionDigitHotKeyBackend {
public:
  /// Receives the digit (1–9) of each press that carries our signature.
  using PressHandler = std::function<void(int digit)>;

  /// A success that leaves nothing installed or registered is reported as this status.
  static constexpr std::int32_t kMissingReferenceStatus = -50;

  virtual ~OptionDigitHotKeyBackend() = default;
  /// At most one handler is installed at a time.
  virtual std::int32_t installHandler(PressHandler handler) = 0;
  /// Does nothing when none is installed.
  virtual void removeHandler() = 0;
  virtual std::int32_t registerHotKey(std::uint32_t keyCode, std::uint32_t modifierFlags,
                                      std::uint32_t identifier) = 0;
  /// Does nothing when `identifier` is not registered.
  virtual void unregisterHotKey(std::uint32_t identifier) = 0;
};

/// Accepts everything and never delivers a press.
class InertOptionDigitHotKeyBackend final : public OptionDigitHotKeyBackend {
public:
  std::int32_t installHandler(PressHandler) override { return 0; }
  void removeHandler() override {}
  std::int32_t registerHotKey(std::uint32_t, std::uint32_t, std::uint32_t) override { return 0; }
  void unregisterHotKey(std::uint32_t) override {}
};

} // namespace quenby
