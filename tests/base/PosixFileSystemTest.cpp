#include "base/PosixFileSystem.hpp"

#include "simulation/TemporaryDirectory.hpp"

#include <filesystem>
#include <gtest/gtest.h>

namespace quenby {
namespace {

TEST(PosixFileSystemTest, CanonicalPathResolvesLinksAndDotsAndRefusesMissingItems) {
  const TemporaryDirectory directory("quenby-fs-");
  const std::string root = directory.path();
  std::filesystem::create_directories(root + "/Real/Inner");
  std::filesystem::create_directory_symlink(root + "/Real", root + "/Link");
  std::filesystem::create_directory_symlink("Link/Inner", root + "/Relative");
  const PosixFileSystem fileSystem;

  EXPECT_EQ(fileSystem.canonicalPath(root + "/Link/Inner"), root + "/Real/Inner");
  EXPECT_EQ(fileSystem.canonicalPath(root + "/Relative"), root + "/Real/Inner");
  EXPECT_EQ(fileSystem.canonicalPath(root + "/Link/./Inner/../Inner/"), root + "/Real/Inner");
  EXPECT_EQ(fileSystem.canonicalPath(root + "/Real"), root + "/Real");
  EXPECT_FALSE(fileSystem.canonicalPath(root + "/Link/Missing").has_value());
  std::filesystem::remove_all(root + "/Real");
  EXPECT_FALSE(fileSystem.canonicalPath(root + "/Link").has_value());
}

} // namespace
} // namespace quenby
