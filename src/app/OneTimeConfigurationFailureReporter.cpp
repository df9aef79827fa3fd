#include "app/OneTimeConfigurationFailureReporter.hpp"

namespace quenby {

namespace {
constexpr std::string_view kMarkerPrefix = "configurationFailure.reported.";
} // namespace

std::string OneTimeConfigurationFailureReporter::markerKey(std::string_view id) {
  std::string key(kMarkerPrefix);
  key += id;
  return key;
}

void OneTimeConfigurationFailureReporter::report(const ConfigurationFailure& failure) {
  const auto key = markerKey(failure.id);
  // Only a Boolean true counts: a marker of another type was not written by us.
  if (defaults_.isTrue(key)) {
    return;
  }
  defaults_.set(key, true);
  if (presenter_ == nullptr) {
    return;
  }
  presenter_->present(failure);
}

} // namespace quenby
