#include "simulation/TemporaryDirectory.hpp"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <system_error>
#include <unistd.h> // mkdtemp, on macOS
#include <vector>

namespace quenby {

TemporaryDirectory::TemporaryDirectory(const std::string& prefix) {
  std::error_code error;
  const std::filesystem::path base = std::filesystem::temp_directory_path(error);
  std::string pattern = (error ? std::filesystem::path("/tmp") : base) / (prefix + "XXXXXX");
  std::vector<char> buffer(pattern.begin(), pattern.end());
  buffer.push_back('\0');
  if (::mkdtemp(buffer.data()) == nullptr) {
    throw std::runtime_error("cannot create a temporary directory from " + pattern);
  }
  // Canonical, so that paths reported by the file system compare equal to ours.
  path_ = std::filesystem::canonical(buffer.data(), error).string();
  if (error) {
    path_ = buffer.data();
  }
}

TemporaryDirectory::~TemporaryDirectory() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

} // namespace quenby
