#pragma once

#include "shortcuts/catalog/ApplicationResolving.hpp"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace quenby {

/// A resolver with answers set by the test: every application is found where the mapping says
/// unless `answers` holds another resolution for its bundle identifier. Records every question.
class ScriptedApplicationResolver final : public ApplicationResolving {
public:
  [[nodiscard]] ApplicationResolution resolve(const std::string& bundleIdentifier,
                                              const FileURL& lastKnownURL) override {
    questions.emplace_back(bundleIdentifier, lastKnownURL);
    if (const auto found = answers.find(bundleIdentifier); found != answers.end()) {
      return found->second;
    }
    return ApplicationResolution::resolved(lastKnownURL);
  }
  [[nodiscard]] std::uint64_t catalogRevision() const override { return revision; }

  std::map<std::string, ApplicationResolution> answers;
  std::vector<std::pair<std::string, FileURL>> questions;
  std::uint64_t revision = 0;
};

} // namespace quenby
