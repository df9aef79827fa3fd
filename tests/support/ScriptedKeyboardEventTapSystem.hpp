#pragma once

#include "hud/tap/SystemKeyboardEventTapDependencies.hpp"

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace quenby {

/// The system's side of the keyboard tap, scripted: it can refuse the tap or its source, deliver
/// events to the installed callback as the system would (nothing reaches a disabled or
/// invalidated tap, except the disabled notices), switch the tap off and refuse to switch it back
/// on. Logs every call in order ("create 1 0 0 0x1c00", "source", "add", "enable 1",
/// "is-enabled", "remove", "invalidate").
class ScriptedKeyboardEventTapSystem {
public:
  bool refuseTap = false;
  bool refuseSource = false;
  bool reenableTakes = true;
  std::vector<std::string> log;

  [[nodiscard]] SystemKeyboardEventTapDependencies dependencies() {
    return {.createTap =
                [this](const EventTapCreation& creation) {
                  char line[64];
                  std::snprintf(line, sizeof line, "create %u %u %u 0x%llx", creation.location,
                                creation.placement, creation.options,
                                static_cast<unsigned long long>(creation.eventMask));
                  log.emplace_back(line);
                  if (refuseTap) {
                    return EventTapPort{};
                  }
                  callback_ = creation.callback;
                  userInfo_ = creation.userInfo;
                  ++openHandles_;
                  return EventTapPort{&port_};
                },
            .createRunLoopSource =
                [this](EventTapPort) {
                  log.emplace_back("source");
                  if (refuseSource) {
                    return EventTapRunLoopSource{};
                  }
                  ++openHandles_;
                  return EventTapRunLoopSource{&source_};
                },
            .mainRunLoop = [this] { return EventTapRunLoop{&runLoop_}; },
            .addRunLoopSource = [this](EventTapRunLoop, EventTapRunLoopSource,
                                       EventTapRunLoopMode) { log.emplace_back("add"); },
            .removeRunLoopSource =
                [this](EventTapRunLoop, EventTapRunLoopSource, EventTapRunLoopMode) {
                  log.emplace_back("remove");
                  --openHandles_;
                },
            .enableTap =
                [this](EventTapPort, bool enable) {
                  log.emplace_back(enable ? "enable 1" : "enable 0");
                  enabled_ = enable && (reenableTakes || !wasDisabled_);
                },
            .isTapEnabled =
                [this](EventTapPort) {
                  log.emplace_back("is-enabled");
                  return enabled_;
                },
            .invalidateTap =
                [this](EventTapPort) {
                  log.emplace_back("invalidate");
                  callback_ = nullptr;
                  enabled_ = false;
                  --openHandles_;
                }};
  }

  [[nodiscard]] bool isInstalled() const { return callback_ != nullptr; }
  [[nodiscard]] bool isEnabled() const { return enabled_; }
  /// Ports and sources created and not yet handed back.
  [[nodiscard]] int openHandles() const { return openHandles_; }

  /// What becomes of the event; an event no tap sees goes on.
  EventTapDisposition deliver(const KeyboardTapEvent& event) const {
    if (callback_ == nullptr || !enabled_) {
      return EventTapDisposition::forward;
    }
    return callback_(userInfo_, event);
  }
  EventTapDisposition keyDown(std::uint16_t keyCode, std::uint64_t flags = 0,
                              bool repeat = false) const {
    return deliver({KeyboardTapEventType::keyDown, keyCode, repeat, flags});
  }
  EventTapDisposition keyUp(std::uint16_t keyCode) const {
    return deliver({KeyboardTapEventType::keyUp, keyCode, false, 0});
  }
  EventTapDisposition flagsChanged(std::uint16_t keyCode) const {
    return deliver({KeyboardTapEventType::flagsChanged, keyCode, false, 0});
  }
  void disable(KeyboardTapEventType notice) {
    if (callback_ == nullptr) {
      return;
    }
    enabled_ = false;
    wasDisabled_ = true;
    callback_(userInfo_, {notice, 0, false, 0});
  }

private:
  EventTapCallback callback_ = nullptr;
  void* userInfo_ = nullptr;
  bool enabled_ = false;
  bool wasDisabled_ = false;
  int openHandles_ = 0;
  // Their addresses are the handles.
  int port_ = 0;
  int source_ = 0;
  int runLoop_ = 0;
};

} // namespace quenby
