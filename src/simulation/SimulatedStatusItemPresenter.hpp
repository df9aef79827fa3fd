#pragma once

#include "app/StatusItemPresenting.hpp"
#include "app/menu/MenuBarExtraStore.hpp"
#include "base/ObservationToken.hpp"
#include "simulation/ScenarioEventRecorder.hpp"

namespace quenby {

/// The status item as the script sees it: a `menu` line when installed and after each
/// publication. `store` and `recorder` must outlive it.
class SimulatedStatusItemPresenter final : public StatusItemPresenting {
public:
  SimulatedStatusItemPresenter(MenuBarExtraStore& store, const ScenarioEventRecorder& recorder)
      : store_(store), recorder_(recorder) {}

  void install() override;
  void remove() override { observation_.cancel(); }

private:
  void show() const;

  MenuBarExtraStore& store_;
  const ScenarioEventRecorder& recorder_;
  ObservationToken observation_;
};

} // namespace quenby
