#pragma once

#include "base/Geometry.hpp"

namespace quenby {

/// The look of the failure panel, kept here so that the platform panel only draws it: a titled,
/// closable floating panel whose content is a leading-aligned column of three selectable texts —
/// the title (headline font), the message (callout font) and the failure id (caption font,
/// monospaced, secondary colour).
struct ConfigurationFailurePanelLayout {
  /// The panel's smallest content rectangle. Long texts make it taller, never wider; the panel
  /// is centred on screen once its final size is known.
  static constexpr Rect contentRect{0, 0, 360, 150};
  /// Space around the column of texts, on every edge.
  static constexpr double padding = 14;
  /// The width the texts wrap to: whatever the padding leaves of the content width.
  static constexpr double textWidth = contentRect.width - 2 * padding;
  /// The floating window level, so the panel stays above ordinary windows of other applications.
  static constexpr int windowLevel = 3;
};

/// One failure panel on screen. It shows itself when it is made (centred, key, in front, with
/// the application activated: an accessory application's window would otherwise stay behind the
/// active application). Closing it more than once, or after the user closed it, is harmless.
class ConfigurationFailurePanel {
public:
  virtual ~ConfigurationFailurePanel() = default;
  virtual void close() = 0;
};

/// The inert panel: never on screen.
class InertConfigurationFailurePanel final : public ConfigurationFailurePanel {
public:
  void close() override {}
};

} // namespace quenby
