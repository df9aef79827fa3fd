#pragma once

#include "hud/routing/KeyboardCharacterTranslating.hpp"

#include <memory>

namespace quenby {

/// What each key types under the user's current keyboard layout, through the text input sources
/// and UCKeyTranslate. The layout is copied once and again only after the user selects another
/// input source, so a key-down does not copy it. Main thread only.
class CurrentInputSourceCharacterTranslator final : public KeyboardCharacterTranslating {
public:
  CurrentInputSourceCharacterTranslator();
  CurrentInputSourceCharacterTranslator(const CurrentInputSourceCharacterTranslator&) = delete;
  CurrentInputSourceCharacterTranslator&
  operator=(const CurrentInputSourceCharacterTranslator&) = delete;
  ~CurrentInputSourceCharacterTranslator() override;

  [[nodiscard]] TypedKeyText character(std::uint16_t keyCode) const override;
  [[nodiscard]] TypedKeyText asciiCapableCharacter(std::uint16_t keyCode) const override;

private:
  struct Storage;
  std::unique_ptr<Storage> storage_;
};

} // namespace quenby
