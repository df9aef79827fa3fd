#include "hud/routing/HUDRoutingSnapshot.hpp"

namespace quenby {
namespace {

HUDNumericRoutingEntry numericEntry(const NumberMappingEntry& entry) {
  if (const auto* problem = entry.problem()) {
    return HUDNumericRoutingEntry::problem(HUDNumericMappingProblem::unavailable(*problem));
  }
  const AppMapping& mapping = *entry.mapping();
  if (auto problem = mapping.problem()) {
    return HUDNumericRoutingEntry::problem(HUDNumericMappingProblem::unresolved(*problem));
  }
  return HUDNumericRoutingEntry::available(mapping);
}

HUDLetterRoutingEntry letterEntry(const AppMapping& mapping) {
  if (auto problem = mapping.problem()) {
    return HUDLetterRoutingEntry::unresolved(*problem);
  }
  return HUDLetterRoutingEntry::available(mapping);
}

bool isLetter(char letter) { return letter >= 'A' && letter <= 'Z'; }

} // namespace

HUDRoutingSnapshot HUDRoutingSnapshot::from(const KeyboardMappingSnapshot& snapshot) {
  HUDRoutingSnapshot routing;
  for (int digit = NumberMappingEntries::kFirstPosition;
       digit <= NumberMappingEntries::kLastPosition; ++digit) {
    routing.numbers_[static_cast<std::size_t>(digit - NumberMappingEntries::kFirstPosition)] =
        numericEntry(snapshot.numberEntries.at(digit));
  }
  for (const auto& [letter, mapping] : snapshot.letterMappings) {
    if (isLetter(letter)) {
      routing.letters_[static_cast<std::size_t>(letter - 'A')] = letterEntry(mapping);
    }
  }
  return routing;
}

const HUDNumericRoutingEntry* HUDRoutingSnapshot::number(int digit) const {
  if (!NumberMappingEntries::isPosition(digit)) {
    return nullptr;
  }
  return &numbers_[static_cast<std::size_t>(digit - NumberMappingEntries::kFirstPosition)];
}

const HUDLetterRoutingEntry* HUDRoutingSnapshot::letter(char letter) const {
  if (!isLetter(letter)) {
    return nullptr;
  }
  const auto& entry = letters_[static_cast<std::size_t>(letter - 'A')];
  return entry ? &*entry : nullptr;
}

HUDKeyboardEventDecision HUDRoutingSnapshot::decideLetter(char letter) const {
  const auto* entry = this->letter(letter);
  if (entry == nullptr) {
    return {};
  }
  if (const auto* mapping = entry->mapping()) {
    return HUDKeyboardEventDecision::consume(
        HUDKeyboardAction::execute(*mapping, HUDKey::letter(letter)));
  }
  return HUDKeyboardEventDecision::consume(
      HUDKeyboardAction::openLetterEditor(letter, *entry->problem()));
}

HUDKeyboardEventDecision HUDRoutingSnapshot::decideVisibleKey(HUDKey key) const {
  switch (key.kind()) {
  case HUDKey::Kind::number: {
    const auto* entry = number(key.digit());
    if (entry == nullptr) {
      return {};
    }
    if (const auto* mapping = entry->mapping()) {
      return HUDKeyboardEventDecision::consume(HUDKeyboardAction::execute(*mapping, key));
    }
    return HUDKeyboardEventDecision::consume(
        HUDKeyboardAction::openNumericInfo(key.digit(), *entry->problem()));
  }
  case HUDKey::Kind::letter:
    return decideLetter(key.letter());
  case HUDKey::Kind::escape:
    return HUDKeyboardEventDecision::consume(HUDKeyboardAction::dismiss());
  case HUDKey::Kind::other:
    break;
  }
  return {};
}

} // namespace quenby
