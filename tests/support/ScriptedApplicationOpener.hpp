#pragma once

#include "shortcuts/switching/ApplicationOpening.hpp"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace quenby {

/// An opener that answers each open with the next scripted error (absent: success; success
/// once the script runs out), at once, or keeps the completion for the test when `deferred`.
class ScriptedApplicationOpener final : public ApplicationOpening {
public:
  void openApplication(const FileURL& url, Completion completion) override {
    openedURLs.push_back(url);
    if (deferred) {
      pending.push_back(std::move(completion));
      return;
    }
    std::optional<std::string> error;
    if (!errors.empty()) {
      error = errors.front();
      errors.pop_front();
    }
    completion(error);
  }

  std::deque<std::optional<std::string>> errors;
  bool deferred = false;
  std::vector<Completion> pending;
  std::vector<FileURL> openedURLs;
};

} // namespace quenby
