#pragma once

#include "shortcuts/catalog/InstalledApplicationLocating.hpp"

namespace quenby {

/// Launch Services' copies of an application, through NSWorkspace. Any thread; no state. URLs
/// that are not file URLs are left out.
class WorkspaceApplicationLocator final : public InstalledApplicationLocating {
public:
  [[nodiscard]] std::vector<FileURL>
  applicationURLs(const std::string& bundleIdentifier) const override;
};

} // namespace quenby
