#pragma once

#include "shortcuts/switching/ApplicationOpening.hpp"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace quenby {

/// An opener that answers each open at once with the next scripted error (absent: success;
/// success once the script runs out).
class ScriptedApplicationOpener final : public ApplicationOpening {
public:
  void openApplication(const FileURL& url, Completion completion) override {
    openedURLs.push_back(url);
    std::optional<std::string> error;
    if (!errors.empty()) {
      error = errors.front();
      errors.pop_front();
    }
    completion(error);
  }

  std::deque<std::optional<std::string>> errors;
  std::vector<FileURL> openedURLs;
};

} // namespace quenby
