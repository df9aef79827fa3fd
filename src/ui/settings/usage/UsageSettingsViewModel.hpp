#pragma once

namespace quenby {

/// The Usage page of the Settings window.
class UsageSettingsViewModel {};

} // namespace quenby
