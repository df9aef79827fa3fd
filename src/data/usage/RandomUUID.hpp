#pragma once

#include <string>

namespace quenby {

/// A new random (version 4) UUID in its standard upper-case text form,
/// "E621E1F8-C36C-495A-93FC-0C247A3E6E5F".
[[nodiscard]] std::string makeRandomUUID();

} // namespace quenby
