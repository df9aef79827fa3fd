#pragma once

#include "base/ObservationToken.hpp"
#include "data/AppPreferencesProviding.hpp"
#include "hud/routing/HUDRoutingSnapshot.hpp"
#include "hud/routing/KeyboardEventTranslator.hpp"
#include "hud/tap/KeyDownRouting.hpp"
#include "shortcuts/mapping/KeyboardMappingSnapshotProviding.hpp"
#include "shortcuts/switching/FrontmostApplicationProviding.hpp"
#include "shortcuts/switching/ShortcutTestMonitor.hpp"

namespace quenby {

/// The keyboard's side of the HUD and of the letter shortcuts. While the HUD is up it owns its
/// keys: Escape, digits, assigned letters and Command-comma. While it is hidden, it is asked only
/// about keys made with the activation modifier alone (the tap settles the rest): an assigned
/// letter whose application is found switches to it (or hides it, when it is in front and the
/// user asked for that); everything else types as usual.
///
/// The routing tables are rebuilt when the mappings change and the preferences it needs are kept
/// as they change, so that a key costs table look-ups: a forwarded key allocates nothing and
/// makes no system call. Main thread only; everything given must outlive it.
class HUDKeyDownRouter final : public KeyDownRouting {
public:
  struct Collaborators {
    KeyboardMappingSnapshotProviding& mappings;
    AppPreferencesProviding& preferences;
    /// Asked only for a key that is about to be swallowed.
    const FrontmostApplicationProviding& frontmostApplication;
    const KeyboardCharacterTranslating& characterTranslator;
    /// While armed, a letter shortcut is described to it: one that would act is swallowed and
    /// does nothing, one that would type still types.
    ShortcutTestMonitor* testMonitor = nullptr;
  };

  static constexpr std::uint16_t kCommaKeyCode = 43;

  explicit HUDKeyDownRouter(Collaborators collaborators);
  HUDKeyDownRouter(const HUDKeyDownRouter&) = delete;
  HUDKeyDownRouter& operator=(const HUDKeyDownRouter&) = delete;

  [[nodiscard]] HUDKeyboardEventDecision route(const KeyDownRoutingRequest& request) override;

  [[nodiscard]] const HUDRoutingSnapshot& routingSnapshot() const { return routing_; }

private:
  [[nodiscard]] HUDKeyboardEventDecision routeHidden(std::uint16_t keyCode) const;
  [[nodiscard]] HUDKeyboardEventDecision describeForTest(char letter,
                                                         const HUDLetterRoutingEntry* entry) const;

  const FrontmostApplicationProviding& frontmostApplication_;
  ShortcutTestMonitor* testMonitor_;
  KeyboardEventTranslator translator_;
  HUDRoutingSnapshot routing_;
  bool hidesFrontmostApplication_;
  /// Followed only to name the key to a shortcut test.
  ActivationModifierPreference modifier_;
  ObservationToken mappingObservation_;
  AppPreferenceObservation preferenceObservation_;
};

} // namespace quenby
