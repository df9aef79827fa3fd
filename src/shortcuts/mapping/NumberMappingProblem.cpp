#include "shortcuts/mapping/NumberMappingProblem.hpp"

namespace quenby {

const char* NumberMappingProblem::name() const {
  switch (kind_) {
  case Kind::invalidDockEntry:
    return "invalidDockEntry";
  case Kind::preferencesUnavailable:
    return "preferencesUnavailable";
  case Kind::emptyDockPosition:
    break;
  }
  return "emptyDockPosition";
}

} // namespace quenby
