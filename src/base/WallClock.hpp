#pragma once

#include "base/MonotonicClock.hpp"

#include <chrono>
#include <memory>

namespace quenby {

using WallTime = std::chrono::system_clock::time_point;

/// The calendar time: what day it is, when something happened. It can jump (the user sets the
/// clock, the time zone changes), so durations are measured with MonotonicClock instead.
class WallClock {
public:
  virtual ~WallClock() = default;
  [[nodiscard]] virtual WallTime now() const = 0;
};

/// The system's clock.
class SystemWallClock final : public WallClock {
public:
  [[nodiscard]] WallTime now() const override { return std::chrono::system_clock::now(); }
};

/// Calendar time that starts at `start` and then follows `clock`, so that tests and the
/// simulation can run whole days on virtual time.
class FollowingWallClock final : public WallClock {
public:
  FollowingWallClock(std::shared_ptr<const MonotonicClock> clock, WallTime start)
      : clock_(std::move(clock)), start_(start), offset_(clock_->now()) {}

  [[nodiscard]] WallTime now() const override {
    return start_ + std::chrono::duration_cast<WallTime::duration>(clock_->now() - offset_);
  }

private:
  std::shared_ptr<const MonotonicClock> clock_;
  WallTime start_;
  Duration offset_;
};

} // namespace quenby
