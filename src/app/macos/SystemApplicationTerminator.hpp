#pragma once

#include "app/ApplicationTerminating.hpp"

namespace quenby {

/// Quits through the shared application, as its Quit menu item does. Main thread only; no state.
class SystemApplicationTerminator final : public ApplicationTerminating {
public:
  void terminate() override;
};

} // namespace quenby
