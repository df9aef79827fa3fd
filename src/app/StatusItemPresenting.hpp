#pragma once

namespace quenby {

/// The menu-bar status item: installed once launching has finished, removed at termination.
class StatusItemPresenting {
public:
  virtual ~StatusItemPresenting() = default;
  virtual void install() = 0;
  virtual void remove() = 0;
};

/// The inert status item: shows nothing.
class InertStatusItemPresenter final : public StatusItemPresenting {
public:
  void install() override {}
  void remove() override {}
};

} // namespace quenby
