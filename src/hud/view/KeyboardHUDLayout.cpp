#include "hud/view/KeyboardHUDLayout.hpp"

#include <algorithm>

namespace quenby {
namespace {

constexpr std::array kDigits{HUDKey::number(1), HUDKey::number(2), HUDKey::number(3),
                             HUDKey::number(4), HUDKey::number(5), HUDKey::number(6),
                             HUDKey::number(7), HUDKey::number(8), HUDKey::number(9)};
constexpr std::array kTopLetters{HUDKey::letter('Q'), HUDKey::letter('W'), HUDKey::letter('E'),
                                 HUDKey::letter('R'), HUDKey::letter('T'), HUDKey::letter('Y'),
                                 HUDKey::letter('U'), HUDKey::letter('I'), HUDKey::letter('O'),
                                 HUDKey::letter('P')};
constexpr std::array kHomeLetters{HUDKey::letter('A'), HUDKey::letter('S'), HUDKey::letter('D'),
                                  HUDKey::letter('F'), HUDKey::letter('G'), HUDKey::letter('H'),
                                  HUDKey::letter('J'), HUDKey::letter('K'), HUDKey::letter('L')};
constexpr std::array kBottomLetters{HUDKey::letter('Z'), HUDKey::letter('X'), HUDKey::letter('C'),
                                    HUDKey::letter('V'), HUDKey::letter('B'), HUDKey::letter('N'),
                                    HUDKey::letter('M')};

const std::array<KeyboardHUDRowDefinition, 4> kRows{{
    {0, kDigits},
    {0.45, kTopLetters},
    {0.75, kHomeLetters},
    {1.2, kBottomLetters},
}};

constexpr double kSettingsButtonSide = 22;
constexpr double kSettingsButtonInset = 8;

Rect scaled(Rect rect, double scale) {
  return {rect.x * scale, rect.y * scale, rect.width * scale, rect.height * scale};
}

} // namespace

std::span<const KeyboardHUDRowDefinition> KeyboardHUDLayout::rows() { return kRows; }

double KeyboardHUDLayout::scale(HUDSizePreference size) {
  switch (size) {
  case HUDSizePreference::small:
    return 1.0;
  case HUDSizePreference::standard:
    return 1.25;
  case HUDSizePreference::large:
    return 1.5;
  }
  return 1.0;
}

Size KeyboardHUDLayout::contentSize(HUDSizePreference size) {
  const auto factor = scale(size);
  return {kBaseContentSize.width * factor, kBaseContentSize.height * factor};
}

double KeyboardHUDLayout::rowWidth(const KeyboardHUDRowDefinition& row) {
  const auto count = static_cast<double>(row.keys.size());
  return row.leadingOffsetUnits * kKeyWidth + count * kKeyWidth + (count - 1) * kKeyGap;
}

double KeyboardHUDLayout::keyboardWidth() {
  double widest = 0;
  for (const auto& row : kRows) {
    widest = std::max(widest, rowWidth(row));
  }
  return widest;
}

double KeyboardHUDLayout::keyboardHeight() {
  const auto count = static_cast<double>(kRows.size());
  return count * kRowHeight + (count - 1) * kRowGap;
}

Size KeyboardHUDLayout::canvasSize() {
  constexpr double padding = 2 * (kInnerPadding + kOuterPadding);
  return {keyboardWidth() + padding, keyboardHeight() + padding};
}

Rect KeyboardHUDLayout::canvasFrame(Metrics metrics) {
  const auto canvas = canvasSize();
  return scaled({(kBaseContentSize.width - canvas.width) / 2,
                 (kBaseContentSize.height - canvas.height) / 2, canvas.width, canvas.height},
                metrics.scale);
}

Rect KeyboardHUDLayout::backgroundFrame(Metrics metrics) {
  const auto canvas = canvasFrame({1.0});
  return scaled({canvas.x + kOuterPadding, canvas.y + kOuterPadding,
                 canvas.width - 2 * kOuterPadding, canvas.height - 2 * kOuterPadding},
                metrics.scale);
}

std::optional<Rect> KeyboardHUDLayout::keyFrame(HUDKey key, Metrics metrics) {
  const auto background = backgroundFrame({1.0});
  for (std::size_t rowIndex = 0; rowIndex < kRows.size(); ++rowIndex) {
    const auto& row = kRows[rowIndex];
    const auto found = std::find(row.keys.begin(), row.keys.end(), key);
    if (found == row.keys.end()) {
      continue;
    }
    const auto column = static_cast<double>(found - row.keys.begin());
    return scaled(
        {background.x + kInnerPadding + row.leadingOffsetUnits * kKeyWidth +
             column * (kKeyWidth + kKeyGap),
         background.y + kInnerPadding + static_cast<double>(rowIndex) * (kRowHeight + kRowGap),
         kKeyWidth, kRowHeight},
        metrics.scale);
  }
  return std::nullopt;
}

Rect KeyboardHUDLayout::settingsButtonFrame(Metrics metrics) {
  const auto background = backgroundFrame({1.0});
  return scaled({background.x + background.width - kSettingsButtonInset - kSettingsButtonSide,
                 background.y + kSettingsButtonInset, kSettingsButtonSide, kSettingsButtonSide},
                metrics.scale);
}

std::optional<HUDKey> KeyboardHUDLayout::hitTest(Point point, Metrics metrics) {
  for (const auto& row : kRows) {
    for (const auto key : row.keys) {
      if (keyFrame(key, metrics)->contains(point)) {
        return key;
      }
    }
  }
  return std::nullopt;
}

} // namespace quenby
