#include "shortcuts/hotkeys/SymbolicHotKeyConflict.hpp"

#include "base/StringFormatter.hpp"
#include "shortcuts/hotkeys/OptionDigitHotKeyError.hpp"
#include "shortcuts/hotkeys/OptionDigitHotKeyRegistrationRequest.hpp"

#include <algorithm>
#include <charconv>
#include <optional>
#include <tuple>

namespace quenby {
namespace {

std::optional<std::int64_t> decimalId(const std::string& key) {
  std::int64_t value = 0;
  const auto* end = key.data() + key.size();
  const auto [stop, error] = std::from_chars(key.data(), end, value);
  if (error != std::errc() || stop != end || key.empty()) {
    return std::nullopt;
  }
  return value;
}

// The table has held both Booleans and 0/1 integers over the years.
bool isEnabled(const PropertyListValue& entry) {
  const auto* enabled = entry.find("enabled");
  if (enabled == nullptr) {
    return false;
  }
  if (const auto* flag = enabled->boolean()) {
    return *flag;
  }
  if (const auto* number = enabled->integer()) {
    return *number != 0;
  }
  return false;
}

/// The digit that `entry` takes with exactly `modifierFlag`, if it does.
std::optional<int> takenDigit(const PropertyListValue& entry, std::int64_t modifierFlag) {
  const auto* value = entry.find("value");
  const auto* parameters = value == nullptr ? nullptr : value->find("parameters");
  const auto* list = parameters == nullptr ? nullptr : parameters->array();
  if (list == nullptr || list->size() < 3) {
    return std::nullopt;
  }
  const auto* keyCode = (*list)[1].integer();
  const auto* flags = (*list)[2].integer();
  if (keyCode == nullptr || flags == nullptr) {
    return std::nullopt;
  }
  // Bits beyond the four modifiers (keypad, function key) do not change which keys are meant.
  constexpr std::int64_t modifierMask =
      SymbolicHotKeyConflict::kShiftFlag | SymbolicHotKeyConflict::kControlFlag |
      SymbolicHotKeyConflict::kOptionFlag | SymbolicHotKeyConflict::kCommandFlag;
  if ((*flags & modifierMask) != modifierFlag) {
    return std::nullopt;
  }
  return OptionDigitHotKeyRegistrationRequest::digitOfKeyCode(*keyCode);
}

} // namespace

std::vector<SymbolicHotKeyConflict>
SymbolicHotKeyConflict::findAll(const PropertyListValue& table,
                                ActivationModifierPreference modifier) {
  std::vector<SymbolicHotKeyConflict> conflicts;
  const auto* entries = table.dictionary();
  if (entries == nullptr) {
    return conflicts;
  }
  const std::int64_t modifierFlag =
      modifier == ActivationModifierPreference::control ? kControlFlag : kOptionFlag;
  for (const auto& [key, entry] : *entries) {
    const auto id = decimalId(key);
    if (!id || entry.dictionary() == nullptr || !isEnabled(entry)) {
      continue;
    }
    if (const auto digit = takenDigit(entry, modifierFlag)) {
      conflicts.push_back({.digit = *digit, .symbolicHotKeyId = *id});
    }
  }
  std::sort(conflicts.begin(), conflicts.end(), [](const auto& a, const auto& b) {
    return std::tie(a.digit, a.symbolicHotKeyId) < std::tie(b.digit, b.symbolicHotKeyId);
  });
  return conflicts;
}

std::string SymbolicHotKeyConflict::takenBy(const Localizer& localizer) const {
  if (symbolicHotKeyId >= kFirstSwitchToDesktopId && symbolicHotKeyId <= kLastSwitchToDesktopId) {
    return formatLocalized(
        localizer.localized(kSwitchToDesktopText),
        {static_cast<long long>(symbolicHotKeyId - kFirstSwitchToDesktopId + 1)});
  }
  return localizer.localized(kGenericSystemShortcutText);
}

std::string SymbolicHotKeyConflict::message(ActivationModifierPreference modifier,
                                            const Localizer& localizer) const {
  const std::string shortcut = takenBy(localizer);
  return formatLocalized(localizer.localized(kSymbolicHotKeyConflictText),
                         {modifierDisplayName(modifier), static_cast<long long>(digit), shortcut});
}

} // namespace quenby
