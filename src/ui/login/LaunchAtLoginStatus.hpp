#pragma once

namespace quenby {

/// Whether the system opens the application at login, as the login item service reports it.
enum class LaunchAtLoginStatus {
  /// Not registered: the application does not open at login.
  notRegistered,
  /// Registered and allowed.
  enabled,
  /// Registered, but the user has to allow it in System Settings' Login Items.
  requiresApproval,
  /// The service cannot find the application (run from a disk image or a translocated copy).
  notFound,
};

} // namespace quenby
