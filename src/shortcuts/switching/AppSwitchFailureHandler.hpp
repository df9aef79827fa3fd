#pragma once

#include "app/ConfigurationFailureReporting.hpp"
#include "base/Localizer.hpp"
#include "shortcuts/switching/AppSwitchFailureHandling.hpp"

#include <functional>

namespace quenby {

inline constexpr LocalizedText kSwitchMappingNeedsAttentionText{
    "diagnostic.switching.mapping-needs-attention", "Application Mapping Needs Attention",
    "Title of the message shown when a shortcut's application must be selected again."};

/// Sends mapping problems to the user, once per mapping and kind of problem, and everything else
/// (the workspace refusing to open an application) to `transientObserver` only: those pass, and
/// a dialog for each would be noise. The reporter and localiser must outlive the handler.
class AppSwitchFailureHandler final : public AppSwitchFailureHandling {
public:
  using TransientObserver = std::function<void(const AppSwitchingError& error)>;

  AppSwitchFailureHandler(ConfigurationFailureReporting& reporter,
                          TransientObserver transientObserver, const Localizer& localizer)
      : reporter_(reporter), transientObserver_(std::move(transientObserver)),
        localizer_(localizer) {}

  void handleFailure(const AppSwitchingError& error, const AppMapping& mapping) override;

private:
  ConfigurationFailureReporting& reporter_;
  TransientObserver transientObserver_;
  const Localizer& localizer_;
};

} // namespace quenby
