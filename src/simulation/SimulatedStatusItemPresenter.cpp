#include "simulation/SimulatedStatusItemPresenter.hpp"

namespace quenby {

void SimulatedStatusItemPresenter::install() {
  show();
  observation_ = store_.observePresentation([this] { show(); });
}

void SimulatedStatusItemPresenter::show() const {
  const MenuBarPresentation& presentation = store_.presentation();
  auto items = nlohmann::ordered_json::array();
  for (const auto& item : presentation.items) {
    items.push_back(item.isSeparator ? "-" : item.title);
  }
  recorder_.emit(
      "menu",
      {{"icon", presentation.iconState == MenuBarIconState::attention ? "attention" : "normal"},
       {"label", presentation.accessibilityDescription},
       {"items", std::move(items)}});
}

} // namespace quenby
