#pragma once

#include "shortcuts/switching/AppHiding.hpp"
#include "shortcuts/switching/HidableApplication.hpp"

namespace quenby {

/// Hides the application in front when it is the mapped one. The caller has compared already,
/// but the front may change between that comparison and the hide, so the check is made again
/// here, against the very application that would be hidden. Main thread only.
class WorkspaceAppHider final : public AppHiding {
public:
  explicit WorkspaceAppHider(FrontmostHidableApplicationSource frontmostApplication)
      : frontmostApplication_(std::move(frontmostApplication)) {}

  bool hideIfFrontmost(const AppMapping& mapping) override;

private:
  FrontmostHidableApplicationSource frontmostApplication_;
};

} // namespace quenby
