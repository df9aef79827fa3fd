#include "shortcuts/switching/AppSwitchCommandQueue.hpp"

namespace quenby {

void AppSwitchCommandQueue::submit(const AppMapping& mapping) {
  if (!acceptsCommands_) {
    return;
  }
  usageAnalytics_.recordShortcutUse(mapping);
  pendingMappings_.push_back(mapping);
  if (worker_) {
    return;
  }
  worker_.emplace(Worker{.generation = generation_, .nextStep = {}});
  scheduleDrainStep(generation_);
}

void AppSwitchCommandQueue::stop() {
  if (!acceptsCommands_) {
    return;
  }
  acceptsCommands_ = false;
  ++generation_;
  pendingMappings_.clear();
  // Dropping the worker cancels its scheduled step; a switch it is waiting on still completes,
  // but finds the generation changed.
  worker_.reset();
}

void AppSwitchCommandQueue::scheduleDrainStep(std::uint64_t generation) {
  worker_->nextStep =
      scheduler_.post(lifetime_.weak([this, generation] { drainStep(generation); }));
}

bool AppSwitchCommandQueue::isCurrent(std::uint64_t generation) const {
  return acceptsCommands_ && generation == generation_ && worker_ &&
         worker_->generation == generation;
}

void AppSwitchCommandQueue::drainStep(std::uint64_t generation) {
  if (!isCurrent(generation)) {
    return;
  }
  if (pendingMappings_.empty()) {
    worker_.reset();
    return;
  }
  AppMapping mapping = std::move(pendingMappings_.front());
  pendingMappings_.pop_front();
  worker_->nextStep = {};
  appSwitcher_.switchToApplication(
      mapping,
      lifetime_.weak([this, generation, mapping](const std::optional<AppSwitchingError>& error) {
        switchFinished(generation, mapping, error);
      }));
}

void AppSwitchCommandQueue::switchFinished(std::uint64_t generation, const AppMapping& mapping,
                                           const std::optional<AppSwitchingError>& error) {
  // The outcome is counted even for a switch that outlived `stop()`: it did happen.
  usageAnalytics_.recordSwitchOutcome(error ? StoredAppOutcome::failure : StoredAppOutcome::success,
                                      mapping);
  if (!isCurrent(generation)) {
    return;
  }
  if (error) {
    failureHandler_.handleFailure(*error, mapping);
    // The handler may have stopped the queue.
    if (!isCurrent(generation)) {
      return;
    }
  }
  // The next switch starts from a fresh main-thread turn, never nested in this completion.
  scheduleDrainStep(generation);
}

} // namespace quenby
