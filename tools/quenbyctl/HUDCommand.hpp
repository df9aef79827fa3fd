#pragma once

#include "base/FileURL.hpp"
#include "shortcuts/running/PreparedApplicationIcon.hpp"

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace quenby {

/// The icon of the application bundle at a location, or null when there is none to draw.
using HUDCommandIconSource =
    std::function<std::shared_ptr<const PreparedApplicationIcon>(const FileURL& bundle)>;

/// `quenbyctl hud --svg FILE [--theme light|dark|system] [--size small|standard|large]
/// [--plist DOCK] [--root R] [--letters JSON]`: draws the HUD as the app would show it for a
/// copied Dock file and a stored letter-mapping document. `arguments` are those after "hud".
/// Theme `system` is drawn light. Without `icons` (or where it answers null) every mapped key
/// shows its placeholder. Returns the exit status: 0 when the picture was written, 1 when an
/// input could not be read or the picture not written, 2 for a usage error.
int runHUDCommand(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err,
                  const HUDCommandIconSource& icons = {});

} // namespace quenby
