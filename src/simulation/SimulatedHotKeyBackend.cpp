#include "simulation/SimulatedHotKeyBackend.hpp"

#include "data/AppPreferenceTable.hpp"
#include "shortcuts/hotkeys/OptionDigitHotKeyRegistrationRequest.hpp"
#include "shortcuts/hotkeys/SymbolicHotKeyConflict.hpp"

#include <algorithm>
#include <string_view>

namespace quenby {
namespace {

// The system's status for a hot key that is already taken.
constexpr std::int32_t kHotKeyExistsStatus = -9878;
// Carbon's modifier masks, as the registrar passes them.
constexpr std::uint32_t kControlKeyMask = 0x1000;

ActivationModifierPreference modifierOfFlags(std::uint32_t flags) {
  return (flags & kControlKeyMask) != 0 ? ActivationModifierPreference::control
                                        : ActivationModifierPreference::option;
}

// "Switch to Desktop N" has the system's own number; any other name gets one of ours.
std::int64_t symbolicIdentifier(std::string_view name, std::size_t index) {
  constexpr std::string_view kDesktop = "Switch to Desktop ";
  if (name.starts_with(kDesktop) && name.size() == kDesktop.size() + 1) {
    const char digit = name.back();
    if (digit >= '1' && digit <= '9') {
      return SymbolicHotKeyConflict::kFirstSwitchToDesktopId + (digit - '1');
    }
  }
  return 1000 + static_cast<std::int64_t>(index);
}

} // namespace

std::int32_t SimulatedHotKeyBackend::installHandler(PressHandler handler) {
  handler_ = std::move(handler);
  return 0;
}

void SimulatedHotKeyBackend::removeHandler() { handler_ = nullptr; }

std::int32_t SimulatedHotKeyBackend::registerHotKey(std::uint32_t keyCode,
                                                    std::uint32_t modifierFlags,
                                                    std::uint32_t identifier) {
  SimulatedHotKeys& hotKeys = world_.hotKeys();
  const auto digit = OptionDigitHotKeyRegistrationRequest::digitOfKeyCode(keyCode);
  const ActivationModifierPreference modifier = modifierOfFlags(modifierFlags);
  hotKeys.modifier = modifier;
  scheduleFlush();
  if (digit && hotKeys.taken.contains({modifier, *digit})) {
    return kHotKeyExistsStatus;
  }
  hotKeys.registered[identifier] = digit.value_or(0);
  return 0;
}

void SimulatedHotKeyBackend::unregisterHotKey(std::uint32_t identifier) {
  if (world_.hotKeys().registered.erase(identifier) > 0) {
    scheduleFlush();
  }
}

std::optional<PropertyListValue> SimulatedHotKeyBackend::copySymbolicHotKeys() {
  const auto& shortcuts = world_.hotKeys().systemShortcuts;
  if (shortcuts.empty()) {
    return std::nullopt;
  }
  PropertyListValue::Dictionary table;
  for (std::size_t index = 0; index < shortcuts.size(); ++index) {
    const auto& shortcut = shortcuts[index];
    const bool control = shortcut.modifier == ActivationModifierPreference::control;
    const auto keyCode = OptionDigitHotKeyRegistrationRequest::kDigitKeyCodes.at(
        static_cast<std::size_t>(shortcut.digit - 1));
    PropertyListValue::Array parameters{
        PropertyListValue(std::int64_t{'0' + shortcut.digit}),
        PropertyListValue(std::int64_t{keyCode}),
        PropertyListValue(control ? SymbolicHotKeyConflict::kControlFlag
                                  : SymbolicHotKeyConflict::kOptionFlag)};
    PropertyListValue::Dictionary value{{"parameters", PropertyListValue(std::move(parameters))},
                                        {"type", PropertyListValue(std::string("standard"))}};
    PropertyListValue::Dictionary entry{{"enabled", PropertyListValue(true)},
                                        {"value", PropertyListValue(std::move(value))}};
    table.emplace(std::to_string(symbolicIdentifier(shortcut.name, index)),
                  PropertyListValue(std::move(entry)));
  }
  return PropertyListValue(std::move(table));
}

void SimulatedHotKeyBackend::deliver(std::uint32_t signature, std::uint32_t identifier) {
  const auto digit = OptionDigitHotKeyRegistrationRequest::digitOfPress(signature, identifier);
  if (digit && handler_ && world_.hotKeys().registered.contains(identifier)) {
    handler_(*digit);
  }
}

void SimulatedHotKeyBackend::flush() {
  pendingFlush_.cancel();
  SimulatedHotKeys& hotKeys = world_.hotKeys();
  std::vector<int> digits;
  for (const auto& [identifier, digit] : hotKeys.registered) {
    digits.push_back(digit);
  }
  std::sort(digits.begin(), digits.end());
  auto now = std::make_pair(hotKeys.modifier, digits);
  if (hotKeys.lastReported == now) {
    return;
  }
  hotKeys.lastReported = now;
  recorder_.emit("hotkeys",
                 {{"modifier", std::string(rawValue(hotKeys.modifier))}, {"registered", digits}});
}

void SimulatedHotKeyBackend::scheduleFlush() {
  if (pendingFlush_.isCancelled()) {
    pendingFlush_ = world_.scheduler()->post([this] { flush(); });
  }
}

} // namespace quenby
