#pragma once

#include "hud/routing/HUDKeyboardEventDecision.hpp"
#include "hud/routing/HUDLetterRoutingEntry.hpp"
#include "hud/routing/HUDNumericRoutingEntry.hpp"
#include "shortcuts/mapping/KeyboardMappingSnapshot.hpp"

#include <array>
#include <optional>

namespace quenby {

/// The mappings as the keys meet them: one entry per digit 1–9 and one per assigned letter,
/// each already sorted into "switch to this" or "this is why not". Built once per mapping
/// snapshot, so that deciding a key is a table look-up.
class HUDRoutingSnapshot {
public:
  /// Every digit empty, no letter assigned.
  HUDRoutingSnapshot() = default;
  [[nodiscard]] static HUDRoutingSnapshot from(const KeyboardMappingSnapshot& snapshot);

  /// Null outside 1–9.
  [[nodiscard]] const HUDNumericRoutingEntry* number(int digit) const;
  /// Null for a letter without a mapping; `letter` is 'A'–'Z'.
  [[nodiscard]] const HUDLetterRoutingEntry* letter(char letter) const;

  /// An assigned letter is swallowed: it switches, or, when its application can't be found,
  /// opens the editor there. Any other letter passes.
  [[nodiscard]] HUDKeyboardEventDecision decideLetter(char letter) const;
  /// What `key` does while the HUD is up, whatever modifiers are held: digits and assigned
  /// letters act on their mappings, Escape dismisses, everything else passes.
  [[nodiscard]] HUDKeyboardEventDecision decideVisibleKey(HUDKey key) const;

  friend bool operator==(const HUDRoutingSnapshot&, const HUDRoutingSnapshot&) = default;

private:
  static constexpr int kLetters = 26;

  std::array<HUDNumericRoutingEntry, NumberMappingEntries::kLastPosition> numbers_;
  std::array<std::optional<HUDLetterRoutingEntry>, kLetters> letters_;
};

} // namespace quenby
