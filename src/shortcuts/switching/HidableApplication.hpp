#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace quenby {

/// A running application that can be asked to hide.
class HidableApplication {
public:
  virtual ~HidableApplication() = default;
  [[nodiscard]] virtual std::optional<std::string> bundleIdentifier() const = 0;
  /// False when the application refused, as a full-screen one does.
  virtual bool hide() = 0;
};

/// The application in front at the moment of asking, or null when there is none.
using FrontmostHidableApplicationSource = std::function<std::unique_ptr<HidableApplication>()>;

} // namespace quenby
