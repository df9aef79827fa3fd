#pragma once

#include "base/FileURL.hpp"

#include <functional>
#include <optional>
#include <string>

namespace quenby {

/// Launches or activates the application bundle at a URL, bringing it to the front.
class ApplicationOpening {
public:
  /// Receives the workspace's error description, or absent when the application opened.
  using Completion = std::function<void(std::optional<std::string> errorDescription)>;

  virtual ~ApplicationOpening() = default;
  /// Calls `completion` exactly once, on the main thread, possibly before returning.
  virtual void openApplication(const FileURL& url, Completion completion) = 0;
};

/// Opens nothing and reports success at once.
class InertApplicationOpener final : public ApplicationOpening {
public:
  void openApplication(const FileURL&, Completion completion) override { completion(std::nullopt); }
};

} // namespace quenby
