#include "data/usage/UsageDayKey.hpp"

#include <array>
#include <cstdio>

namespace quenby {

UsageDayKey UsageDayKey::from(const std::chrono::year_month_day& day) {
  // Room for any int year, so that a calendar's odd answer is still formatted, not truncated.
  std::array<char, 32> buffer{};
  const int length =
      std::snprintf(buffer.data(), buffer.size(), "%04d-%02u-%02u", static_cast<int>(day.year()),
                    static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()));
  return UsageDayKey(std::string(buffer.data(), static_cast<std::size_t>(length)));
}

} // namespace quenby
