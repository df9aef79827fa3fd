#include "hud/feature/HUDHealth.hpp"

#include "hud/tap/GlobalKeyboardEventTapError.hpp"

namespace quenby {

const LocalizedText& HUDTapFailure::description() const {
  return kind == Kind::runtime ? descriptionText(runtimeFailure)
                               : descriptionText(GlobalKeyboardEventTapError::creationFailed);
}

std::string_view HUDHealth::caseName() const {
  switch (kind) {
  case Kind::needsPermission:
    return "needsPermission";
  case Kind::tapFailure:
    return "tapFailure";
  case Kind::disabled:
    return "disabled";
  case Kind::ready:
    return "ready";
  }
  return "disabled";
}

} // namespace quenby
