#pragma once

#include "base/ObservationToken.hpp"

namespace quenby {

/// Returned by the mapping providers' observe operations and owning the Dock poll timer: the
/// observation lasts exactly as long as the token is held.
using MappingObservationToken = ObservationToken;

} // namespace quenby
