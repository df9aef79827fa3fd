#pragma once

#include "base/MainScheduler.hpp"

namespace quenby {

/// How the mapping providers schedule work on the main run loop (deferred reloads, poll timers).
using MappingScheduling = MainScheduler;

} // namespace quenby
