#include "hud/access/KeyboardAccessMonitor.hpp"

#include "base/ManualScheduler.hpp"

#include <gtest/gtest.h>

namespace quenby {
namespace {

class ScriptedProbe final : public KeyboardAccessProbing {
public:
  [[nodiscard]] std::int32_t secureInputProcess() const override { return holder; }
  [[nodiscard]] std::optional<std::string> applicationName(std::int32_t) const override {
    return std::nullopt;
  }
  [[nodiscard]] std::uint64_t systemKeyDownCount() const override { return systemCount; }

  std::int32_t holder = kNoSecureInput;
  std::uint64_t systemCount = 0;
};

struct Fixture {
  void seconds(int count) { scheduler.advanceBy(std::chrono::seconds(count)); }

  ScriptedProbe probe;
  std::uint64_t tapCount = 0;
  ManualScheduler scheduler;
  KeyboardAccessMonitor monitor{probe, [this] { return tapCount; }, scheduler};
};

TEST(KeyboardAccessMonitorTest, CallsTheTapStaleOnlyOnTwentyUnheardKeyDownsWithinTenSeconds) {
  Fixture f;
  f.monitor.start();
  // Keys the system counts and the tap hears are fine, however many.
  f.probe.systemCount = 500;
  f.tapCount = 480;
  f.seconds(20);
  EXPECT_FALSE(f.monitor.condition().tapLooksStale);

  // Secure entry makes the tap deaf on purpose: that stretch never counts against it.
  f.probe.holder = KeyboardAccessProbing::kUnknownHolder;
  f.probe.systemCount += 100;
  f.seconds(3);
  f.probe.holder = KeyboardAccessProbing::kNoSecureInput;
  f.seconds(1);
  f.probe.systemCount += 19;
  f.seconds(6);
  EXPECT_FALSE(f.monitor.condition().tapLooksStale);
  f.probe.systemCount += 20;
  f.seconds(10);
  EXPECT_TRUE(f.monitor.condition().tapLooksStale);

  // It stays until the tap hears something again.
  f.seconds(30);
  EXPECT_TRUE(f.monitor.condition().tapLooksStale);
  ++f.tapCount;
  f.seconds(1);
  EXPECT_FALSE(f.monitor.condition().tapLooksStale);

  // The system's 32-bit counter wrapping is not a burst of keys.
  f.probe.systemCount = 3;
  f.seconds(11);
  EXPECT_FALSE(f.monitor.condition().tapLooksStale);

  // Stopping forgets it, and a restart needs a full window of evidence again.
  f.probe.systemCount += 40;
  f.seconds(11);
  ASSERT_TRUE(f.monitor.condition().tapLooksStale);
  f.monitor.stop();
  EXPECT_EQ(f.monitor.condition(), KeyboardAccessCondition{});
  f.monitor.start();
  f.probe.systemCount += 40;
  f.seconds(9);
  EXPECT_FALSE(f.monitor.condition().tapLooksStale);
}

} // namespace
} // namespace quenby
