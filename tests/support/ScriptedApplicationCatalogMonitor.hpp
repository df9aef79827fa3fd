#pragma once

#include "shortcuts/catalog/ApplicationCatalogMonitoring.hpp"

namespace quenby {

/// A catalog monitor that reports a change when the test says so.
class ScriptedApplicationCatalogMonitor final : public ApplicationCatalogMonitoring {
public:
  void start() override { ++starts; }
  void stop() override {}
  void setOnChange(std::function<void()> handler) override { onChange_ = std::move(handler); }

  void reportChange() {
    if (onChange_) {
      onChange_();
    }
  }

  int starts = 0;

private:
  std::function<void()> onChange_;
};

} // namespace quenby
