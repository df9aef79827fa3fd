#pragma once

#include "hud/routing/HUDNumericMappingProblem.hpp"
#include "hud/view/HUDKey.hpp"
#include "shortcuts/mapping/AppMapping.hpp"

#include <optional>
#include <variant>

namespace quenby {

/// What a key (or a click on the HUD) asks the HUD's panel controller to do. The default action
/// is `none`.
class HUDKeyboardAction {
public:
  /// Switch to `mapping`'s application; `key` is the key that chose it.
  struct Execute {
    AppMapping mapping;
    HUDKey key;
    friend bool operator==(const Execute&, const Execute&) = default;
  };
  /// Hide the front application, which is `mapping`'s.
  struct HideApplication {
    AppMapping mapping;
    friend bool operator==(const HideApplication&, const HideApplication&) = default;
  };
  /// Explain why `digit` leads nowhere.
  struct OpenNumericInfo {
    int digit;
    HUDNumericMappingProblem problem;
    friend bool operator==(const OpenNumericInfo&, const OpenNumericInfo&) = default;
  };
  /// Open the mapping editor at `letter`; `problem` says why its application can't be found,
  /// absent for a letter without a mapping.
  struct OpenLetterEditor {
    char letter;
    std::optional<ApplicationResolutionProblem> problem;
    friend bool operator==(const OpenLetterEditor&, const OpenLetterEditor&) = default;
  };
  struct None {
    friend bool operator==(None, None) = default;
  };
  struct Dismiss {
    friend bool operator==(Dismiss, Dismiss) = default;
  };
  struct OpenSettings {
    friend bool operator==(OpenSettings, OpenSettings) = default;
  };
  using Case = std::variant<Execute, HideApplication, OpenNumericInfo, OpenLetterEditor, None,
                            Dismiss, OpenSettings>;

  HUDKeyboardAction() : case_(None{}) {}

  // By reference: each payload is copied once, from the routing tables (passing it by value
  // and moving it on trips a false maybe-uninitialized warning in GCC 12).
  [[nodiscard]] static HUDKeyboardAction execute(const AppMapping& mapping, HUDKey key) {
    return HUDKeyboardAction(Case(std::in_place_type<Execute>, Execute{mapping, key}));
  }
  [[nodiscard]] static HUDKeyboardAction hideApplication(const AppMapping& mapping) {
    return HUDKeyboardAction(Case(std::in_place_type<HideApplication>, HideApplication{mapping}));
  }
  [[nodiscard]] static HUDKeyboardAction openNumericInfo(int digit,
                                                         const HUDNumericMappingProblem& problem) {
    return HUDKeyboardAction(
        Case(std::in_place_type<OpenNumericInfo>, OpenNumericInfo{digit, problem}));
  }
  [[nodiscard]] static HUDKeyboardAction
  openLetterEditor(char letter, const std::optional<ApplicationResolutionProblem>& problem) {
    return HUDKeyboardAction(
        Case(std::in_place_type<OpenLetterEditor>, OpenLetterEditor{letter, problem}));
  }
  [[nodiscard]] static HUDKeyboardAction none() { return {}; }
  [[nodiscard]] static HUDKeyboardAction dismiss() { return HUDKeyboardAction(Dismiss{}); }
  [[nodiscard]] static HUDKeyboardAction openSettings() {
    return HUDKeyboardAction(OpenSettings{});
  }

  [[nodiscard]] const Case& value() const { return case_; }
  /// The case's payload, or null when the action is another case.
  template <typename T> [[nodiscard]] const T* as() const { return std::get_if<T>(&case_); }
  template <typename T> [[nodiscard]] bool is() const { return std::holds_alternative<T>(case_); }

  friend bool operator==(const HUDKeyboardAction&, const HUDKeyboardAction&) = default;

private:
  explicit HUDKeyboardAction(Case action) : case_(std::move(action)) {}

  Case case_;
};

} // namespace quenby
