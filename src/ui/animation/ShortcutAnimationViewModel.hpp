#pragma once

#include "shortcuts/running/PreparedApplicationIcon.hpp"
#include "ui/animation/ShortcutAnimationTimeline.hpp"

#include <memory>
#include <string>
#include <utility>

namespace quenby {

/// What the animation's panel draws: the application's icon (none while it is still loading, in
/// which case the label stands alone) and the shortcut's label, and the timeline it moves by.
/// The controller sets it before each play; the panel reads it when it draws. Main thread only.
class ShortcutAnimationViewModel {
public:
  [[nodiscard]] const std::shared_ptr<const PreparedApplicationIcon>& icon() const { return icon_; }
  void setIcon(std::shared_ptr<const PreparedApplicationIcon> icon) { icon_ = std::move(icon); }
  [[nodiscard]] const std::string& shortcutLabel() const { return shortcutLabel_; }
  void setShortcutLabel(std::string label) { shortcutLabel_ = std::move(label); }
  [[nodiscard]] const ShortcutAnimationTimeline& timeline() const { return timeline_; }
  void setTimeline(const ShortcutAnimationTimeline& timeline) { timeline_ = timeline; }

private:
  std::shared_ptr<const PreparedApplicationIcon> icon_;
  std::string shortcutLabel_;
  ShortcutAnimationTimeline timeline_ = ShortcutAnimationTimeline::normal();
};

} // namespace quenby
