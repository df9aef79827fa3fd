#include "base/PosixFileSystem.hpp"
#include "base/libplist/LibplistPropertyListDecoder.hpp"
#include "shortcuts/dock/PropertyListFileDockPreferences.hpp"
#include "simulation/LibplistPropertyListEncoder.hpp"
#include "simulation/TemporaryDirectory.hpp"

#include <fstream>
#include <gtest/gtest.h>

namespace quenby {
namespace {

/// Counts the decodes, to tell a re-read from a re-decode.
class CountingDecoder final : public PropertyListDecoding {
public:
  [[nodiscard]] Expected<PropertyListValue, PropertyListDecodingError>
  decode(std::span<const std::uint8_t> bytes) const override {
    ++decodes;
    return decoder.decode(bytes);
  }
  LibplistPropertyListDecoder decoder;
  mutable int decodes = 0;
};

void writeFile(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

TEST(DockPropertyListFileTest, AFileThatIsNotADockDomainFailsTheRightWay) {
  TemporaryDirectory directory("dock-file");
  const std::string path = directory.path() + "/com.apple.dock.plist";
  PosixFileSystem fileSystem;
  CountingDecoder decoder;
  PropertyListFileDockPreferences preferences(fileSystem, decoder, path);
  auto reader = preferences.makeReader();
  const auto error = [&] { return reader.readPersistentApplications().error(); };

  EXPECT_EQ(error(), DockPreferenceReaderError::synchronizationFailed);
  EXPECT_EQ(preferences.lastFailure(), path + ": cannot be read");

  writeFile(path, "{ not a property list");
  EXPECT_EQ(error(), DockPreferenceReaderError::synchronizationFailed);
  EXPECT_TRUE(preferences.lastFailure()->starts_with(path + ": not a property list"));

  writeFile(path, LibplistPropertyListEncoder::encodeXML(PropertyListValue::Array{}));
  EXPECT_EQ(error(), DockPreferenceReaderError::missingPersistentApplications);
  EXPECT_FALSE(preferences.lastFailure().has_value());

  const PropertyListValue::Dictionary notAnArray{{"persistent-apps", "Mail"}};
  writeFile(path, LibplistPropertyListEncoder::encodeXML(notAnArray));
  EXPECT_EQ(error(), DockPreferenceReaderError::invalidPersistentApplications);

  const PropertyListValue::Dictionary empty{{"persistent-apps", PropertyListValue::Array{}}};
  const auto bytes = LibplistPropertyListEncoder::encodeBinary(empty);
  writeFile(path, std::string(bytes.begin(), bytes.end()));
  const int decodesBefore = decoder.decodes;
  for (int poll = 0; poll < 3; ++poll) {
    EXPECT_TRUE(reader.readPersistentApplications().hasValue());
  }
  EXPECT_EQ(decoder.decodes, decodesBefore + 1);
}

} // namespace
} // namespace quenby
