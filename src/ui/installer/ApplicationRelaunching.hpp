#pragma once

#include <functional>
#include <optional>
#include <string>

namespace quenby {

/// Handing over from this process to another copy of the application. Main thread only.
class ApplicationRelaunching {
public:
  /// Receives the system's description of a failure, or nothing once the copy has launched.
  using Completion = std::function<void(std::optional<std::string> error)>;

  virtual ~ApplicationRelaunching() = default;
  /// Whether an application launched from the bundle at `bundlePath` is running now.
  [[nodiscard]] virtual bool isRunning(const std::string& bundlePath) const = 0;
  /// Launches the bundle as a new process even though this one, with the same identifier, still
  /// runs. `completion` runs once, on the main thread, never beneath this call.
  virtual void openNewInstance(const std::string& bundlePath, Completion completion) = 0;
  /// Quits this process the usual way, once the caller's turn on the main thread is over.
  virtual void quit() = 0;
};

/// Sees nothing running, opens nothing (and so never answers) and never quits.
class InertApplicationRelauncher final : public ApplicationRelaunching {
public:
  [[nodiscard]] bool isRunning(const std::string&) const override { return false; }
  void openNewInstance(const std::string&, Completion) override {}
  void quit() override {}
};

} // namespace quenby
