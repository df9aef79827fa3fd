#pragma once

#include "hud/panel/HUDPresentationSignposting.hpp"

#include <memory>

namespace quenby {

/// Signposts in the unified log: subsystem the main bundle's identifier (or
/// "com.brimfold.Quenby"), category "HUDPresentation". Main thread only.
class OSHUDPresentationSignposter final : public HUDPresentationSignposting {
public:
  OSHUDPresentationSignposter();
  OSHUDPresentationSignposter(const OSHUDPresentationSignposter&) = delete;
  OSHUDPresentationSignposter& operator=(const OSHUDPresentationSignposter&) = delete;
  ~OSHUDPresentationSignposter() override;

  void beginInterval() override;
  void emitEvent(HUDPresentationPhase phase) override;
  void endInterval(HUDPresentationOutcome outcome) override;

private:
  struct Storage;
  std::unique_ptr<Storage> storage_;
};

} // namespace quenby
