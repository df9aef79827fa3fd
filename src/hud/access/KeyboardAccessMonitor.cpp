#include "hud/access/KeyboardAccessMonitor.hpp"

#include <algorithm>
#include <utility>

namespace quenby {

KeyboardAccessMonitor::KeyboardAccessMonitor(const KeyboardAccessProbing& probe,
                                             std::function<std::uint64_t()> tapKeyDownCount,
                                             MainScheduler& scheduler)
    : probe_(probe), tapKeyDownCount_(std::move(tapKeyDownCount)), scheduler_(scheduler) {}

void KeyboardAccessMonitor::start() {
  if (isRunning()) {
    return;
  }
  forgetSamples();
  checks_ = scheduler_.scheduleRepeating(kCheckInterval, [this] { check(); });
  check();
}

void KeyboardAccessMonitor::stop() {
  checks_.cancel();
  forgetSamples();
  publish({});
}

void KeyboardAccessMonitor::check() {
  KeyboardAccessCondition next = condition_;
  const std::int32_t holder = probe_.secureInputProcess();
  if (holder != KeyboardAccessProbing::kNoSecureInput) {
    // The name is asked for once per holder, not once a second.
    if (holder != namedProcess_) {
      namedProcess_ = holder;
      namedProcessName_ = holder == KeyboardAccessProbing::kUnknownHolder
                              ? std::string()
                              : probe_.applicationName(holder).value_or(std::string());
    }
    next.secureInputHolder = namedProcessName_;
    forgetSamples();
    publish(std::move(next));
    return;
  }
  namedProcess_ = KeyboardAccessProbing::kNoSecureInput;
  next.secureInputHolder.reset();

  const Sample now{.system = probe_.systemKeyDownCount(), .tap = tapKeyDownCount_()};
  if (sampleCount_ > 0 && now.tap != samples_[newest_].tap) {
    next.tapLooksStale = false; // the tap hears keys again
  }
  newest_ = (newest_ + 1) % samples_.size();
  samples_[newest_] = now;
  sampleCount_ = std::min(sampleCount_ + 1, samples_.size());
  if (sampleCount_ == samples_.size()) {
    // A full ring: the slot after the newest holds the oldest sample.
    const Sample& oldest = samples_[(newest_ + 1) % samples_.size()];
    if (now.tap == oldest.tap && now.system >= oldest.system &&
        now.system - oldest.system >= kStaleKeyDownThreshold) {
      next.tapLooksStale = true;
    }
  }
  publish(std::move(next));
}

void KeyboardAccessMonitor::publish(KeyboardAccessCondition condition) {
  if (condition == condition_) {
    return;
  }
  condition_ = std::move(condition);
  observers_.notify();
}

} // namespace quenby
