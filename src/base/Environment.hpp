#pragma once

#include <map>
#include <string>

namespace quenby {

/// The process environment as name → value, read once by whoever needs it and passed in, so that
/// nothing reads the real environment behind the runtime's back.
using Environment = std::map<std::string, std::string, std::less<>>;

} // namespace quenby
