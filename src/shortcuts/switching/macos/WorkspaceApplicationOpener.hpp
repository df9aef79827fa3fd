#pragma once

#include "base/LifetimeGuard.hpp"
#include "shortcuts/switching/ApplicationOpening.hpp"

namespace quenby {

/// Opens applications through NSWorkspace, bringing them to the front. Call on the main thread;
/// the completion comes back there, and never after the opener is gone.
class WorkspaceApplicationOpener final : public ApplicationOpening {
public:
  void openApplication(const FileURL& url, Completion completion) override;

private:
  LifetimeGuard lifetime_;
};

} // namespace quenby
