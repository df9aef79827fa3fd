// A seeded random walk through the tap: keys pressed, held, repeated and released in any order,
// the modifier going up and down (sometimes with its release lost), the HUD opening and closing,
// and the system switching the tap off, by time-out or by user input, with restarts.
//
// The invariant, for every key-up delivered while the tap runs:
//   the key-up is consumed  <=>  the latest key-down of that key was consumed, and nothing
//                                 since then made the tap forget it.
// Forgetting is legitimate exactly when the tap resets: at a stop, at any disable (the tap
// resets even when a time-out recovers, since the system may have dropped events meanwhile). So
// the model marks a key "swallowed" when its key-down is consumed, unmarks it at its key-up, and
// clears every mark at each reset; the tap must agree with the model on every key-up.
//
// The keys are decided by the real routing: a few letters are assigned (one of them to an
// application that can't be found), and each key-down carries the activation modifier alone,
// Command alone, or Shift with the modifier, so hidden shortcuts, the HUD's keys and the
// Settings shortcut all occur.

#include "hud/routing/HUDKeyDownRouter.hpp"
#include "hud/tap/TapHarness.hpp"

#include <array>
#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <random>

namespace quenby {
namespace {

using namespace std::chrono_literals;

TEST(GlobalKeyboardEventTapPropertyTest, AKeyUpIsSwallowedExactlyWhenItsKeyDownWas) {
  constexpr int kSteps = 1'000'000;
  constexpr std::uint16_t kKeys = 12;
  auto h = std::make_unique<TapHarness>();
  KeyboardMappingSnapshot snapshot;
  for (const char letter : {'A', 'F', 'Z', 'C'}) {
    const auto url = FileURL::fromPath(std::string("/Applications/") + letter + ".app");
    snapshot.letterMappings.emplace(
        letter, AppMapping{.displayName = std::string(1, letter),
                           .bundleIdentifier = std::string("com.example.") + letter,
                           .lastKnownURL = url,
                           .resolution = letter == 'C' ? ApplicationResolution::notFound()
                                                       : ApplicationResolution::resolved(url),
                           .source = MappingSource::letter(letter)});
  }
  struct FixedMappings final : KeyboardMappingSnapshotProviding {
    [[nodiscard]] const KeyboardMappingSnapshot& snapshot() const override { return current; }
    [[nodiscard]] ObservationToken observe(SnapshotHandler) override { return {}; }
    KeyboardMappingSnapshot current;
  } mappings;
  mappings.current = snapshot;
  InertFrontmostApplicationProvider frontmost;
  InertKeyboardCharacterTranslator characters;
  HUDKeyDownRouter router({.mappings = mappings,
                           .preferences = h->preferences,
                           .frontmostApplication = frontmost,
                           .characterTranslator = characters});
  h->router.delegate = &router;
  // Letters, a key that is neither letter nor digit, the digit 1, Escape and comma.
  const std::array<std::uint16_t, kKeys + 3> keys{
      0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 18, 53, TapKeyDownRouter::kSettingsKey};
  const std::array<std::uint16_t, 3> modifiers{TapHarness::kLeftOption, TapHarness::kRightOption,
                                               TapHarness::kLeftControl};
  const std::array<std::uint64_t, 3> flags{0x80000, 0x100000, 0xA0000};

  std::mt19937 random(20240611);
  std::bitset<128> down;
  std::bitset<128> swallowed;
  int consumedUps = 0;
  int restarts = 0;
  ASSERT_FALSE(h->tap.start());

  for (int step = 0; step < kSteps; ++step) {
    const auto roll = random() % 1000;
    const auto key = keys[random() % keys.size()];
    const auto modifier = modifiers[random() % modifiers.size()];
    if (!h->tap.isRunning()) {
      ASSERT_FALSE(h->tap.start());
      ++restarts;
      continue;
    }
    if (roll < 350) {
      const bool repeat = down.test(key);
      const auto result = h->system.keyDown(key, flags[random() % flags.size()], repeat);
      if (!repeat) {
        down.set(key);
        swallowed.set(key, result == EventTapDisposition::consume);
      } else if (swallowed.test(key)) {
        ASSERT_EQ(result, EventTapDisposition::consume) << "step " << step;
      }
    } else if (roll < 700) {
      const auto result = h->system.keyUp(key);
      ASSERT_EQ(result == EventTapDisposition::consume, swallowed.test(key))
          << "key " << key << " at step " << step;
      consumedUps += result == EventTapDisposition::consume ? 1 : 0;
      down.reset(key);
      swallowed.reset(key);
    } else if (roll < 900) {
      const bool lost = roll >= 880;
      h->keys.held.flip(modifier);
      if (!lost) {
        ASSERT_EQ(h->system.flagsChanged(modifier), EventTapDisposition::forward);
      }
    } else if (roll < 960) {
      h->scheduler.advanceBy(std::chrono::milliseconds(random() % 500));
    } else if (roll < 985) {
      h->presenter.visible = !h->presenter.visible;
    } else {
      h->system.reenableTakes = random() % 2 == 0;
      h->system.disable(roll < 995 ? KeyboardTapEventType::tapDisabledByTimeout
                                   : KeyboardTapEventType::tapDisabledByUserInput);
      swallowed.reset();
    }
  }
  // The walk must have exercised both sides of the invariant and the recoveries.
  EXPECT_GT(consumedUps, 1000);
  EXPECT_GT(restarts, 100);
  EXPECT_GT(h->metrics.begun, 10);
}

} // namespace
} // namespace quenby
