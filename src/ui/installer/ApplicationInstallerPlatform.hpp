#pragma once

#include "ui/installer/ApplicationFileOperating.hpp"
#include "ui/installer/ApplicationInstallerAlerting.hpp"
#include "ui/installer/ApplicationRelaunching.hpp"
#include "ui/installer/ApplicationSignatureVerifying.hpp"

#include <memory>

namespace quenby {

/// What moving the application into the Applications folder needs from the platform.
struct ApplicationInstallerPlatform {
  std::shared_ptr<ApplicationFileOperating> files;
  std::shared_ptr<ApplicationSignatureVerifying> signatureVerifier;
  std::shared_ptr<ApplicationRelaunching> relauncher;
  std::shared_ptr<ApplicationInstallerAlerting> alerts;

  /// No bundle known, so the installer never asks and never touches a file.
  [[nodiscard]] static ApplicationInstallerPlatform inert() {
    return {.files = std::make_shared<InertApplicationFileOperations>(),
            .signatureVerifier = std::make_shared<InertApplicationSignatureVerifier>(),
            .relauncher = std::make_shared<InertApplicationRelauncher>(),
            .alerts = std::make_shared<InertApplicationInstallerAlerts>()};
  }
};

} // namespace quenby
