#include "app/SystemConfigurationFailurePanelPresenter.hpp"

namespace quenby {

void SystemConfigurationFailurePanelPresenter::present(const ConfigurationFailure& failure) {
  if (panel_) {
    panel_->close();
    panel_.reset();
  }
  panel_ = panelFactory_.makePanel(failure);
}

} // namespace quenby
