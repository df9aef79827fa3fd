#pragma once

#include <string>

namespace quenby {

/// The offer to move the application, already localised.
struct ApplicationMoveQuestion {
  std::string message;
  std::string informativeText;
  std::string moveTitle;
  std::string keepTitle;
};

/// Why a move did not happen, already localised.
struct ApplicationInstallerNotice {
  std::string message;
  std::string informativeText;
  std::string dismissTitle;
};

/// The installer's modal alerts. Main thread only; each call returns once the user has answered.
class ApplicationInstallerAlerting {
public:
  virtual ~ApplicationInstallerAlerting() = default;
  /// True only when the user chose to move.
  [[nodiscard]] virtual bool confirmMove(const ApplicationMoveQuestion& question) = 0;
  virtual void inform(const ApplicationInstallerNotice& notice) = 0;
};

/// Asks nobody and answers no, so nothing moves behind the user's back.
class InertApplicationInstallerAlerts final : public ApplicationInstallerAlerting {
public:
  [[nodiscard]] bool confirmMove(const ApplicationMoveQuestion&) override { return false; }
  void inform(const ApplicationInstallerNotice&) override {}
};

} // namespace quenby
