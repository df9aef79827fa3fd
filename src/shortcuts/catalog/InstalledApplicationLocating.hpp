#pragma once

#include "base/FileURL.hpp"

#include <string>
#include <vector>

namespace quenby {

/// Where the system believes the copies of an application are installed (Launch Services on
/// macOS). Candidates only: the resolver verifies each one on disk.
class InstalledApplicationLocating {
public:
  virtual ~InstalledApplicationLocating() = default;
  [[nodiscard]] virtual std::vector<FileURL>
  applicationURLs(const std::string& bundleIdentifier) const = 0;
};

/// The inert locator: knows of no application.
class InertInstalledApplicationLocator final : public InstalledApplicationLocating {
public:
  [[nodiscard]] std::vector<FileURL> applicationURLs(const std::string&) const override {
    return {};
  }
};

} // namespace quenby
