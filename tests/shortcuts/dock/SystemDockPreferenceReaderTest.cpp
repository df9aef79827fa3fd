#include "shortcuts/dock/SystemDockPreferenceReader.hpp"

#include "support/DockItems.hpp"

#include <gtest/gtest.h>

namespace quenby {
namespace {

// The macOS source hands back its last conversion whenever the Dock's value is unchanged; the
// poll stays at a pointer comparison only if the reader passes those items on without copying.
TEST(SystemDockPreferenceReaderTest, AnUnchangedSourceValueArrivesWithTheSameItems) {
  PropertyListValue served = PropertyListValue::Array{
      DockItems::application("Mail", "com.apple.mail", "file:///System/Applications/Mail.app/")};
  SystemDockPreferenceReader reader([] { return true; },
                                    [&]() -> std::optional<PropertyListValue> { return served; });

  const auto first = reader.readPersistentApplications();
  const auto second = reader.readPersistentApplications();
  ASSERT_TRUE(first && second);
  EXPECT_EQ(&first->items(), &second->items());

  served = PropertyListValue::Array(*served.array());
  const auto fresh = reader.readPersistentApplications();
  ASSERT_TRUE(fresh);
  EXPECT_NE(&fresh->items(), &first->items());
  EXPECT_EQ(*fresh, *first);
}

// A value the source could not convert comes as an empty dictionary: present, so malformed.
TEST(SystemDockPreferenceReaderTest, AnUnconvertibleValueIsMalformedNotMissing) {
  SystemDockPreferenceReader reader([] { return true; },
                                    []() -> std::optional<PropertyListValue> {
                                      return PropertyListValue(PropertyListValue::Dictionary{});
                                    });
  const auto read = reader.readPersistentApplications();
  ASSERT_FALSE(read);
  EXPECT_EQ(read.error(), DockPreferenceReaderError::invalidPersistentApplications);
}

} // namespace
} // namespace quenby
