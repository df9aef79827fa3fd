#include "app/ShortcutDiagnostics.hpp"

#include <utility>

namespace quenby {

template <typename T> void ShortcutDiagnostics::update(T& field, T value) {
  if (field == value) {
    return;
  }
  field = std::move(value);
  observers_.notify();
}

void ShortcutDiagnostics::setAutomaticWarning(std::optional<std::string> warning) {
  update(automaticWarning_, std::move(warning));
}

void ShortcutDiagnostics::recordManualConflict(ShortcutManualConflict conflict) {
  update(manualConflict_, std::optional(std::move(conflict)));
}

void ShortcutDiagnostics::clearManualConflict() {
  update(manualConflict_, std::optional<ShortcutManualConflict>());
}

void ShortcutDiagnostics::setTestedModifier(std::optional<ActivationModifierPreference> modifier) {
  update(testedModifier_, modifier);
}

void ShortcutDiagnostics::setRuntimeAvailable(bool available) {
  update(isRuntimeAvailable_, available);
}

int ShortcutDiagnostics::advanceTestGeneration() {
  update(testGeneration_, testGeneration_ + 1);
  return testGeneration_;
}

} // namespace quenby
