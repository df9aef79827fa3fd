#pragma once

#include "shortcuts/switching/ApplicationPresenceChecking.hpp"

namespace quenby {

/// Asks the default file manager whether a directory exists at a bundle's path. Any thread; no
/// state.
class FileManagerApplicationPresenceChecker final : public ApplicationPresenceChecking {
public:
  [[nodiscard]] bool applicationExists(const FileURL& url) const override;
};

} // namespace quenby
