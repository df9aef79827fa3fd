#pragma once

#include "base/Localizer.hpp"
#include "hud/view/HUDKey.hpp"
#include "hud/view/KeyboardHUDKeyView.hpp"
#include "hud/view/KeyboardHUDViewModel.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace quenby {

/// Turns the HUD's content into what each key shows: its label, mapping, icon, state, running
/// mark and spoken label. The texts are looked up once, when the builder is made.
class KeyboardHUDContentBuilder {
public:
  /// Longer application names are cut to this many characters, the last one an ellipsis.
  static constexpr std::size_t kCaptionCharacters = 10;

  explicit KeyboardHUDContentBuilder(const Localizer& localizer);

  /// One vector per row of `KeyboardHUDLayout::rows()`, keys in the same order.
  [[nodiscard]] std::vector<std::vector<KeyboardHUDKeyView>>
  rows(const KeyboardHUDMappingCache& cache) const;
  [[nodiscard]] KeyboardHUDKeyView keyView(HUDKey key, const KeyboardHUDMappingCache& cache) const;

  /// The digit or letter itself; "Esc" for Escape and "Key" for any other key.
  [[nodiscard]] std::string label(HUDKey key) const;
  /// `displayName` cut to `kCaptionCharacters` characters (counted as Unicode code points).
  [[nodiscard]] static std::string caption(std::string_view displayName);

private:
  [[nodiscard]] std::string accessibilityLabel(const KeyboardHUDKeyView& view) const;

  std::string escapeLabel_;
  std::string genericLabel_;
  std::string unbound_;
  std::string bound_;
  std::string boundRunning_;
  std::string invalid_;
  std::string invalidRunning_;
  std::string invalidUnknown_;
};

} // namespace quenby
