#include "simulation/SimulatedShortcutAnimationPanel.hpp"

#include "simulation/PropertyListJSON.hpp"

namespace quenby {

void SimulatedShortcutAnimationPanel::play() {
  nlohmann::ordered_json fields{
      {"label", model_.shortcutLabel()},
      {"frame",
       {jsonNumber(origin_.x), jsonNumber(origin_.y), jsonNumber(contentSize_.width),
        jsonNumber(contentSize_.height)}}};
  if (model_.timeline() == ShortcutAnimationTimeline::reduced()) {
    fields["reduced"] = true;
  }
  recorder_.emit("animation", std::move(fields));
}

} // namespace quenby
