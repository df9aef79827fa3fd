#pragma once

#include "app/ConfigurationFailurePresenting.hpp"
#include "app/ConfigurationFailureReporting.hpp"
#include "base/KeyValueStore.hpp"

#include <string>
#include <string_view>

namespace quenby {

/// Shows each failure id at most once, ever: a Boolean true under "configurationFailure.reported."
/// plus the id marks it, in this launch and every later one. The mark is written before the
/// failure is presented and even when no presenter is attached, so a failure reported with no
/// presenter is never shown, and a panel the user closed never comes back: nagging twice is worse
/// than missing once.
class OneTimeConfigurationFailureReporter final : public ConfigurationFailureReporting {
public:
  /// `presenter` is not owned; whoever owns it detaches it (`setPresenter(nullptr)`) before it
  /// dies.
  explicit OneTimeConfigurationFailureReporter(KeyValueStore& defaults,
                                               ConfigurationFailurePresenting* presenter = nullptr)
      : defaults_(defaults), presenter_(presenter) {}

  void report(const ConfigurationFailure& failure) override;

  [[nodiscard]] ConfigurationFailurePresenting* presenter() const { return presenter_; }
  /// Null detaches the presenter; failures reported meanwhile are marked and not shown.
  void setPresenter(ConfigurationFailurePresenting* presenter) { presenter_ = presenter; }

  /// The user-defaults key that marks `id` as reported.
  [[nodiscard]] static std::string markerKey(std::string_view id);

private:
  KeyValueStore& defaults_;
  ConfigurationFailurePresenting* presenter_;
};

} // namespace quenby
