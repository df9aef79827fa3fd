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

TEST(PosixFileSystemTest, AtomicWritesReplaceTheWholeFileAndLeaveNothingBehind) {
  const TemporaryDirectory directory("quenby-fs-");
  const std::string root = directory.path();
  PosixFileSystem fileSystem;
  const std::string path = root + "/Mappings.json";

  ASSERT_TRUE(fileSystem.writeFileAtomically(path, {'o', 'l', 'd', ' ', 'l', 'o', 'n', 'g'}));
  ASSERT_TRUE(fileSystem.writeFileAtomically(path, {'n', 'e', 'w'}));
  const auto written = fileSystem.readFile(path, 100);
  ASSERT_TRUE(written);
  EXPECT_EQ(std::string(written->begin(), written->end()), "new");
  EXPECT_TRUE(fileSystem.writeFileAtomically(root + "/Empty.json", {}));
  EXPECT_EQ(fileSystem.attributes(root + "/Empty.json").size, 0u);

  // A folder in the way of the rename: refused, and no temporary file is left.
  std::filesystem::create_directory(root + "/Taken.json");
  std::filesystem::create_directory(root + "/Taken.json/inside");
  EXPECT_FALSE(fileSystem.writeFileAtomically(root + "/Taken.json", {'x'}));
  EXPECT_FALSE(fileSystem.writeFileAtomically(root + "/Missing/Mappings.json", {'x'}));
  EXPECT_EQ(fileSystem.listDirectory(root),
            (std::vector<std::string>{"Empty.json", "Mappings.json", "Taken.json"}));
}

} // namespace
} // namespace quenby
