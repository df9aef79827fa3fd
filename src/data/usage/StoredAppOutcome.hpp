#pragma once

namespace quenby {

/// How one switch to an application ended, as app switching reports it; the application itself
/// is the mapping handed in beside it.
enum class StoredAppOutcome { success = 0, failure = 1 };

} // namespace quenby
