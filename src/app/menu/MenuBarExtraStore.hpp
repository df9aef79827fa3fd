#pragma once

#include "app/menu/MenuBarCommand.hpp"
#include "app/menu/MenuBarPresentation.hpp"
#include "base/ObservationToken.hpp"
#include "base/ObserverList.hpp"

#include <functional>

namespace quenby {

/// Where the menu bar's presentation is published and where the status item sends the chosen
/// commands: the meeting point of the controller, which computes, and the presenter, which
/// shows. One per runtime. Main thread only.
class MenuBarExtraStore {
public:
  using CommandHandler = std::function<void(const MenuBarCommand&)>;

  [[nodiscard]] const MenuBarPresentation& presentation() const { return presentation_; }
  /// Tells every observer; the caller publishes only what changed.
  void publish(MenuBarPresentation presentation) {
    presentation_ = std::move(presentation);
    observers_.notify();
  }
  /// `handler` runs after each publication, for as long as the token is held.
  [[nodiscard]] ObservationToken observePresentation(std::function<void()> handler) {
    return observers_.add(std::move(handler));
  }

  /// Called as the user opens the menu, before it shows.
  void setOpenHandler(std::function<void()> handler) { openHandler_ = std::move(handler); }
  void menuWillOpen() const {
    if (openHandler_) {
      openHandler_();
    }
  }

  void setCommandHandler(CommandHandler handler) { commandHandler_ = std::move(handler); }
  /// A chosen item's command; nothing happens while no handler is set.
  void perform(const MenuBarCommand& command) const {
    if (commandHandler_) {
      commandHandler_(command);
    }
  }

private:
  MenuBarPresentation presentation_;
  ObserverList<> observers_;
  CommandHandler commandHandler_;
  std::function<void()> openHandler_;
};

} // namespace quenby
