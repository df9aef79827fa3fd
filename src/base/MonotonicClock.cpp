#include "base/MonotonicClock.hpp"

namespace quenby {

Duration SteadyMonotonicClock::now() const {
  return std::chrono::duration_cast<Duration>(std::chrono::steady_clock::now().time_since_epoch());
}

} // namespace quenby
