#include "simulation/SimulatedWorkspaceAdapters.hpp"

namespace quenby {
namespace {

class SimulatedHidableApplication final : public HidableApplication {
public:
  SimulatedHidableApplication(SimulatedWorkspace& workspace, const ScenarioEventRecorder& recorder,
                              std::string bundleIdentifier)
      : workspace_(workspace), recorder_(recorder), bundleIdentifier_(std::move(bundleIdentifier)) {
  }

  [[nodiscard]] std::optional<std::string> bundleIdentifier() const override {
    return bundleIdentifier_;
  }

  bool hide() override {
    const bool hides = !workspace_.fullScreen.contains(bundleIdentifier_);
    if (hides && workspace_.frontmost == bundleIdentifier_) {
      workspace_.frontmost.reset();
    }
    recorder_.emit("hide", {{"bundle", bundleIdentifier_}, {"ok", hides}});
    return hides;
  }

private:
  SimulatedWorkspace& workspace_;
  const ScenarioEventRecorder& recorder_;
  std::string bundleIdentifier_;
};

} // namespace

void SimulatedWorkspaceAdapters::openApplication(const FileURL& url, Completion completion) {
  recorder_.emit("open", {{"path", world_.scriptPath(url.path())}});
  const std::uint64_t open = nextOpen_++;
  // Even an immediate answer comes later on the main queue, as the workspace's does.
  pendingOpens_.emplace(open, world_.scheduler()->scheduleAfter(
                                  world_.workspace().openLatency,
                                  [this, open, url, completion = std::move(completion)] {
                                    const auto finished = pendingOpens_.extract(open);
                                    finishOpening(url, completion);
                                  }));
}

void SimulatedWorkspaceAdapters::finishOpening(const FileURL& url, const Completion& completion) {
  const std::string path = world_.scriptPath(url.path());
  SimulatedWorkspace& workspace = world_.workspace();
  std::optional<std::string> error;
  const auto identifier = world_.applications().bundleIdentifier(url);
  if (workspace.failingOpens.contains(path)) {
    error = "The application \"" + url.lastPathComponentWithoutExtension() +
            "\" could not be launched.";
  } else if (!applicationExists(url) || !identifier) {
    error = "The application cannot be found.";
  } else {
    workspace.frontmost = *identifier;
    workspace.launched(*identifier);
  }
  recorder_.emit("opened", {{"path", path}, {"ok", !error.has_value()}});
  completion(std::move(error));
}

bool SimulatedWorkspaceAdapters::applicationExists(const FileURL& url) const {
  const FileAttributes attributes = world_.fileSystem()->attributes(url.path());
  return attributes.exists && attributes.isDirectory;
}

std::unique_ptr<HidableApplication> SimulatedWorkspaceAdapters::frontmostHidableApplication() {
  const auto& frontmost = world_.workspace().frontmost;
  if (!frontmost) {
    return nullptr;
  }
  return std::make_unique<SimulatedHidableApplication>(world_.workspace(), recorder_, *frontmost);
}

std::vector<RunningApplicationProcessSnapshot>
SimulatedWorkspaceAdapters::runningApplications() const {
  std::vector<RunningApplicationProcessSnapshot> processes;
  for (const auto& bundleIdentifier : world_.workspace().running) {
    processes.push_back({.bundleIdentifier = bundleIdentifier, .isTerminated = false});
  }
  return processes;
}

} // namespace quenby
