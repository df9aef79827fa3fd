#pragma once

#include "base/Localizer.hpp"
#include "shortcuts/switching/AppSwitchConfigurationFailure.hpp"

#include <optional>
#include <string>

namespace quenby {

/// Why a switch failed: the mapping needs the user's attention, or the workspace refused to open
/// an application that was found.
class AppSwitchingError {
public:
  enum class Kind { configuration, activationFailed };

  [[nodiscard]] static AppSwitchingError configuration(AppSwitchConfigurationFailure failure) {
    return AppSwitchingError(std::move(failure));
  }
  /// `description` is the workspace error's own, already localised.
  [[nodiscard]] static AppSwitchingError activationFailed(std::string description) {
    return AppSwitchingError(std::move(description));
  }

  [[nodiscard]] Kind kind() const {
    return configurationFailure_ ? Kind::configuration : Kind::activationFailed;
  }
  /// Present exactly for `configuration`.
  [[nodiscard]] const std::optional<AppSwitchConfigurationFailure>& configurationFailure() const {
    return configurationFailure_;
  }
  [[nodiscard]] std::string description(const Localizer& localizer) const {
    return configurationFailure_ ? configurationFailure_->description(localizer)
                                 : activationDescription_;
  }

  friend bool operator==(const AppSwitchingError&, const AppSwitchingError&) = default;

private:
  explicit AppSwitchingError(AppSwitchConfigurationFailure failure)
      : configurationFailure_(std::move(failure)) {}
  explicit AppSwitchingError(std::string description)
      : activationDescription_(std::move(description)) {}

  std::optional<AppSwitchConfigurationFailure> configurationFailure_;
  std::string activationDescription_;
};

} // namespace quenby
