#pragma once

#include "shortcuts/hotkeys/OptionDigitHotKeyBackend.hpp"

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace quenby {

/// Logs every call in order ("install", "register 23 0x800 5", "unregister 4", "remove") and
/// fails the registrations it is told to. Keeps the last handler even after removal, so a test
/// can deliver a press the system might still have in flight.
class RecordingHotKeyBackend final : public OptionDigitHotKeyBackend {
public:
  std::int32_t installHandler(PressHandler handler) override {
    log.push_back("install");
    handler_ = std::move(handler);
    return installStatus;
  }
  void removeHandler() override { log.push_back("remove"); }
  std::int32_t registerHotKey(std::uint32_t keyCode, std::uint32_t modifierFlags,
                              std::uint32_t identifier) override {
    char flags[16];
    std::snprintf(flags, sizeof flags, "0x%x", modifierFlags);
    log.push_back("register " + std::to_string(keyCode) + " " + flags + " " +
                  std::to_string(identifier));
    const auto failure = failures.find({modifierFlags, identifier});
    return failure == failures.end() ? 0 : failure->second;
  }
  void unregisterHotKey(std::uint32_t identifier) override {
    log.push_back("unregister " + std::to_string(identifier));
  }

  void press(int digit) const {
    if (handler_) {
      handler_(digit);
    }
  }

  std::int32_t installStatus = 0;
  /// Status by (modifier flags, identifier).
  std::map<std::pair<std::uint32_t, std::uint32_t>, std::int32_t> failures;
  std::vector<std::string> log;

private:
  PressHandler handler_;
};

} // namespace quenby
