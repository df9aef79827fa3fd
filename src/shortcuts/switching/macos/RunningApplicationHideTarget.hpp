#pragma once

#include "shortcuts/switching/HidableApplication.hpp"

#include <memory>

namespace quenby {

/// One running application, as the workspace names it. Main thread only.
class RunningApplicationHideTarget final : public HidableApplication {
public:
  /// The workspace's front application at the moment of asking, or null when there is none.
  [[nodiscard]] static std::unique_ptr<HidableApplication> frontmost();

  struct Storage;
  /// Only `frontmost()` can fill the storage: it holds the Objective-C object.
  explicit RunningApplicationHideTarget(std::unique_ptr<Storage> storage);
  ~RunningApplicationHideTarget() override;

  [[nodiscard]] std::optional<std::string> bundleIdentifier() const override;
  bool hide() override;

private:
  std::unique_ptr<Storage> storage_;
};

} // namespace quenby
