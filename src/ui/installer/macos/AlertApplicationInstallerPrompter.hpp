#pragma once

#include "ui/installer/ApplicationInstallerAlerting.hpp"

namespace quenby {

/// The installer's question and notices as modal AppKit alerts. Main thread only; no state.
class AlertApplicationInstallerPrompter final : public ApplicationInstallerAlerting {
public:
  [[nodiscard]] bool confirmMove(const ApplicationMoveQuestion& question) override;
  void inform(const ApplicationInstallerNotice& notice) override;
};

} // namespace quenby
