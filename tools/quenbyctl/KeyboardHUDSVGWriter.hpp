#pragma once

#include "hud/view/KeyboardHUDContentBuilder.hpp"
#include "hud/view/KeyboardHUDPalette.hpp"
#include "hud/view/KeyboardHUDViewModel.hpp"

#include <string>

namespace quenby {

/// Draws the HUD as an SVG document with the app's layout, palette and key views: the panel's
/// whole content, one `<text>` per key label, PNG icons embedded, every other icon as its
/// placeholder. Numbers are written with at most two decimals, so equal input gives equal bytes.
class KeyboardHUDSVGWriter {
public:
  /// `environment` stands for the system's appearance, which theme `system` follows.
  [[nodiscard]] static std::string write(const KeyboardHUDViewModel& model,
                                         KeyboardHUDColorScheme environment,
                                         const KeyboardHUDContentBuilder& builder);
};

} // namespace quenby
