#pragma once

#include "app/StatusItemPresenting.hpp"
#include "app/menu/MenuBarExtraStore.hpp"

#include <memory>

namespace quenby {

/// The square status item in the system menu bar and its menu, rebuilt from the store's
/// presentation each time it is published; chosen items go back to the store as commands. Main
/// thread only; the store must outlive it.
class MenuBarStatusItemPresenter final : public StatusItemPresenting {
public:
  explicit MenuBarStatusItemPresenter(MenuBarExtraStore& store);
  MenuBarStatusItemPresenter(const MenuBarStatusItemPresenter&) = delete;
  MenuBarStatusItemPresenter& operator=(const MenuBarStatusItemPresenter&) = delete;
  ~MenuBarStatusItemPresenter() override;

  void install() override;
  void remove() override;

private:
  struct State;
  std::unique_ptr<State> state_;
};

} // namespace quenby
