#pragma once

#include "shortcuts/hotkeys/OptionDigitHotKeyBackend.hpp"

#include <memory>

namespace quenby {

/// The digit hot keys as the system's Carbon event hot keys on the application event target.
/// Main thread only.
class CarbonOptionDigitHotKeyBackend final : public OptionDigitHotKeyBackend {
public:
  CarbonOptionDigitHotKeyBackend();
  CarbonOptionDigitHotKeyBackend(const CarbonOptionDigitHotKeyBackend&) = delete;
  CarbonOptionDigitHotKeyBackend& operator=(const CarbonOptionDigitHotKeyBackend&) = delete;
  /// Unregisters every hot key still registered and removes the handler.
  ~CarbonOptionDigitHotKeyBackend() override;

  std::int32_t installHandler(PressHandler handler) override;
  void removeHandler() override;
  std::int32_t registerHotKey(std::uint32_t keyCode, std::uint32_t modifierFlags,
                              std::uint32_t identifier) override;
  void unregisterHotKey(std::uint32_t identifier) override;

private:
  struct Storage;
  std::unique_ptr<Storage> storage_;
};

} // namespace quenby
