#pragma once

#include "app/ApplicationTerminating.hpp"

namespace quenby {

/// Notes the request; the scenario runner ends the process once the current line is done, as
/// the system does once the current turn of the main thread is over.
class SimulatedApplicationTerminator final : public ApplicationTerminating {
public:
  void terminate() override { requested_ = true; }
  [[nodiscard]] bool isRequested() const { return requested_; }

private:
  bool requested_ = false;
};

} // namespace quenby
