#include "hud/view/KeyboardHUDContentBuilder.hpp"

#include "base/StringFormatter.hpp"
#include "hud/view/KeyboardHUDLayout.hpp"
#include "hud/view/KeyboardHUDTexts.hpp"
#include "shortcuts/switching/AppSwitchConfigurationFailure.hpp"

namespace quenby {
namespace {

const AppMapping* mappingFor(HUDKey key, const KeyboardMappingSnapshot& snapshot) {
  switch (key.kind()) {
  case HUDKey::Kind::number:
    // An unavailable Dock position (empty, invalid tile, unreadable Dock) has no mapping.
    return NumberMappingEntries::isPosition(key.digit())
               ? snapshot.numberEntries.at(key.digit()).mapping()
               : nullptr;
  case HUDKey::Kind::letter: {
    const auto found = snapshot.letterMappings.find(key.letter());
    return found == snapshot.letterMappings.end() ? nullptr : &found->second;
  }
  case HUDKey::Kind::escape:
  case HUDKey::Kind::other:
    break;
  }
  return nullptr;
}

bool isContinuationByte(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

} // namespace

KeyboardHUDContentBuilder::KeyboardHUDContentBuilder(const Localizer& localizer)
    : escapeLabel_(localizer.localized(kHUDEscapeKeyLabel)),
      genericLabel_(localizer.localized(kHUDGenericKeyLabel)),
      unbound_(localizer.localized(kHUDUnboundAccessibilityLabel)),
      bound_(localizer.localized(kHUDBoundAccessibilityLabel)),
      boundRunning_(localizer.localized(kHUDBoundRunningAccessibilityLabel)),
      invalid_(localizer.localized(kHUDInvalidAccessibilityLabel)),
      invalidRunning_(localizer.localized(kHUDInvalidRunningAccessibilityLabel)),
      invalidUnknown_(localizer.localized(kHUDInvalidUnknownAccessibilityLabel)) {}

std::vector<std::vector<KeyboardHUDKeyView>>
KeyboardHUDContentBuilder::rows(const KeyboardHUDMappingCache& cache) const {
  std::vector<std::vector<KeyboardHUDKeyView>> rows;
  rows.reserve(KeyboardHUDLayout::rows().size());
  for (const auto& row : KeyboardHUDLayout::rows()) {
    auto& views = rows.emplace_back();
    views.reserve(row.keys.size());
    for (const auto key : row.keys) {
      views.push_back(keyView(key, cache));
    }
  }
  return rows;
}

KeyboardHUDKeyView KeyboardHUDContentBuilder::keyView(HUDKey key,
                                                      const KeyboardHUDMappingCache& cache) const {
  KeyboardHUDKeyView view;
  view.key = key;
  view.label = label(key);
  if (const AppMapping* mapping = mappingFor(key, cache.snapshot)) {
    view.mapping = *mapping;
    view.visualState = switchConfigurationFailure(*mapping) ? KeyboardHUDKeyVisualState::invalid
                                                            : KeyboardHUDKeyVisualState::bound;
    view.isRunning = cache.runningBundleIdentifiers.contains(mapping->bundleIdentifier);
    if (const auto icon = cache.icons.find(mapping->bundleIdentifier);
        icon != cache.icons.end() && icon->second) {
      view.icon = KeyboardHUDKeyPresentation::cachedIcon(icon->second);
    }
    view.caption = caption(mapping->displayName);
  }
  view.accessibilityLabel = accessibilityLabel(view);
  return view;
}

std::string KeyboardHUDContentBuilder::label(HUDKey key) const {
  switch (key.kind()) {
  case HUDKey::Kind::number:
    return std::to_string(key.digit());
  case HUDKey::Kind::letter:
    return std::string(1, key.letter());
  case HUDKey::Kind::escape:
    return escapeLabel_;
  case HUDKey::Kind::other:
    break;
  }
  return genericLabel_;
}

std::string KeyboardHUDContentBuilder::caption(std::string_view displayName) {
  std::size_t characters = 0;
  for (std::size_t i = 0; i < displayName.size(); ++i) {
    if (isContinuationByte(displayName[i])) {
      continue;
    }
    if (characters == kCaptionCharacters - 1) {
      // Keep the rest whole when it is exactly one more character.
      std::size_t end = i + 1;
      while (end < displayName.size() && isContinuationByte(displayName[end])) {
        ++end;
      }
      if (end == displayName.size()) {
        return std::string(displayName);
      }
      return std::string(displayName.substr(0, i)) + "\u2026";
    }
    ++characters;
  }
  return std::string(displayName);
}

std::string KeyboardHUDContentBuilder::accessibilityLabel(const KeyboardHUDKeyView& view) const {
  if (!view.mapping) {
    return formatLocalized(unbound_, {view.label});
  }
  const std::string_view name = view.mapping->displayName;
  if (view.visualState == KeyboardHUDKeyVisualState::bound) {
    return formatLocalized(view.isRunning ? boundRunning_ : bound_, {view.label, name});
  }
  if (name.empty()) {
    return formatLocalized(invalidUnknown_, {view.label});
  }
  return formatLocalized(view.isRunning ? invalidRunning_ : invalid_, {view.label, name});
}

} // namespace quenby
