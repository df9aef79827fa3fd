#pragma once

namespace quenby {

/// The General page of the Settings window.
class GeneralSettingsViewModel {};

} // namespace quenby
