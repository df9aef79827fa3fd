#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace quenby {

/// How a counted switch was asked for: through the HUD, a digit shortcut or a letter shortcut.
/// The raw values are the keys of the stored per-category counts, so they never change.
enum class UsageCategory { hud, optionDigit, optionLetter };

inline constexpr std::array<UsageCategory, 3> kUsageCategories{
    UsageCategory::hud, UsageCategory::optionDigit, UsageCategory::optionLetter};

[[nodiscard]] constexpr std::string_view usageCategoryRawValue(UsageCategory category) {
  switch (category) {
  case UsageCategory::hud:
    return "hud";
  case UsageCategory::optionDigit:
    return "optionDigit";
  case UsageCategory::optionLetter:
    break;
  }
  return "optionLetter";
}

[[nodiscard]] constexpr std::optional<UsageCategory> usageCategory(std::string_view raw) {
  for (const auto category : kUsageCategories) {
    if (usageCategoryRawValue(category) == raw) {
      return category;
    }
  }
  return std::nullopt;
}

} // namespace quenby
