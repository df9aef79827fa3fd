#pragma once

#include <chrono>
#include <compare>
#include <string>
#include <utility>

namespace quenby {

/// A local calendar day as "YYYY-MM-DD". Zero-padded, so that ordering the texts orders the days;
/// stored documents use the text as it is, so a key read back need not be a valid date.
class UsageDayKey {
public:
  explicit UsageDayKey(std::string rawValue) : rawValue_(std::move(rawValue)) {}
  [[nodiscard]] static UsageDayKey from(const std::chrono::year_month_day& day);

  [[nodiscard]] const std::string& rawValue() const { return rawValue_; }

  friend auto operator<=>(const UsageDayKey&, const UsageDayKey&) = default;
  friend bool operator==(const UsageDayKey&, const UsageDayKey&) = default;

private:
  std::string rawValue_;
};

} // namespace quenby
