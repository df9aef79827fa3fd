#include "shortcuts/mapping/KeyboardMappingStoreError.hpp"

#include "base/StringFormatter.hpp"
#include "shortcuts/mapping/KeyboardMappingStoreTexts.hpp"

namespace quenby {

std::string KeyboardMappingStoreError::message(const Localizer& localizer) const {
  switch (kind) {
  case Kind::invalidLetter:
    return formatLocalized(localizer.localized(kMappingInvalidLetterText), {letter});
  case Kind::invalidApplication:
    return formatLocalized(localizer.localized(kMappingInvalidApplicationText),
                           {application.lastPathComponent()});
  case Kind::notSaved:
    return localizer.localized(kMappingNotSavedText);
  }
  return localizer.localized(kMappingNotSavedText);
}

} // namespace quenby
