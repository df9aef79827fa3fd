#pragma once

#include "shortcuts/switching/AppSwitching.hpp"

#include <utility>
#include <vector>

namespace quenby {

/// A switcher whose switches finish only when the test says so, in any order it likes.
class ScriptedAppSwitcher final : public AppSwitching {
public:
  struct Request {
    AppMapping mapping;
    Completion completion;
  };

  void switchToApplication(const AppMapping& mapping, Completion completion) override {
    requests.push_back({mapping, std::move(completion)});
  }
  /// Finishes the request at `index` with `error` (absent: success).
  void finish(std::size_t index, std::optional<AppSwitchingError> error = std::nullopt) {
    auto completion = std::move(requests.at(index).completion);
    completion(std::move(error));
  }

  std::vector<Request> requests;
};

} // namespace quenby
