#pragma once

#include "base/FileURL.hpp"

namespace quenby {

/// Whether an application bundle is still on disk where the catalog last saw it.
class ApplicationPresenceChecking {
public:
  virtual ~ApplicationPresenceChecking() = default;
  /// True when something exists at `url` and it is a directory.
  [[nodiscard]] virtual bool applicationExists(const FileURL& url) const = 0;
};

/// Takes every application to be present, so switching never asks for a catalog refresh.
class InertApplicationPresenceChecker final : public ApplicationPresenceChecking {
public:
  [[nodiscard]] bool applicationExists(const FileURL&) const override { return true; }
};

} // namespace quenby
