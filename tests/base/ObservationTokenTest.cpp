#include "base/ObservationToken.hpp"

#include <gtest/gtest.h>
#include <utility>

namespace quenby {
namespace {

TEST(ObservationTokenTest, EachRegistrationEndsExactlyOnceWithItsLastOwner) {
  int first = 0;
  int second = 0;
  {
    ObservationToken held([&] { ++first; });
    ObservationToken replacement([&] { ++second; });

    // Overwriting a live token ends the registration it held, not the one it takes over.
    held = std::move(replacement);
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 0);
    EXPECT_TRUE(replacement.isCancelled()); // NOLINT: checking the moved-from state on purpose

    held.cancel();
    held.cancel();
    EXPECT_EQ(second, 1);
    EXPECT_TRUE(held.isCancelled());
  }
  // Neither the cancelled token nor the moved-from one ends anything again on destruction.
  EXPECT_EQ(first, 1);
  EXPECT_EQ(second, 1);

  int dropped = 0;
  {
    ObservationToken owner([&] { ++dropped; });
    ObservationToken moved(std::move(owner));
    EXPECT_EQ(dropped, 0);
  }
  EXPECT_EQ(dropped, 1);
}

TEST(ObservationTokenTest, ACancellationThatReentersItsTokenRunsOnce) {
  int runs = 0;
  ObservationToken token;
  token = ObservationToken([&] {
    ++runs;
    token.cancel();
  });
  token.cancel();
  EXPECT_EQ(runs, 1);
}

} // namespace
} // namespace quenby
