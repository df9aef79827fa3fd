#pragma once

#include "app/ConfigurationFailurePanelMaking.hpp"
#include "app/ConfigurationFailurePresenting.hpp"

#include <memory>

namespace quenby {

/// Shows failures in panels, one at a time: a new failure closes the panel still showing.
class SystemConfigurationFailurePanelPresenter final : public ConfigurationFailurePresenting {
public:
  /// `panelFactory` must outlive the presenter.
  explicit SystemConfigurationFailurePanelPresenter(ConfigurationFailurePanelMaking& panelFactory)
      : panelFactory_(panelFactory) {}

  void present(const ConfigurationFailure& failure) override;

  /// The panel made last; it may have been closed by the user since.
  [[nodiscard]] const ConfigurationFailurePanel* panel() const { return panel_.get(); }

private:
  ConfigurationFailurePanelMaking& panelFactory_;
  std::unique_ptr<ConfigurationFailurePanel> panel_;
};

} // namespace quenby
