#include "base/PropertyListValue.hpp"

#include "base/InMemoryKeyValueStore.hpp"

#include <gtest/gtest.h>

namespace quenby {
namespace {

TEST(PropertyListValueTest, KeepsBooleansIntegersAndRealsDistinct) {
  const PropertyListValue yes = true;
  const PropertyListValue one = 1;
  const PropertyListValue oneReal = 1.0;
  EXPECT_NE(yes, one);
  EXPECT_NE(one, oneReal);
  EXPECT_EQ(yes.kind(), PropertyListValue::Kind::boolean);
  EXPECT_EQ(one.integer() != nullptr, true);
  EXPECT_EQ(yes.integer(), nullptr);
  EXPECT_EQ(PropertyListValue("text"), PropertyListValue(std::string("text")));
  EXPECT_NE(PropertyListValue(PropertyListValue::Data{1, 2}), PropertyListValue("\x01\x02"));
  EXPECT_NE(PropertyListValue(PropertyListDate{5}), PropertyListValue(5.0));
}

TEST(PropertyListValueTest, ComparesAndLooksUpNestedContainersDeeply) {
  const PropertyListValue tile = PropertyListValue::Dictionary{
      {"tile-type", "file-tile"},
      {"tile-data", PropertyListValue::Dictionary{{"bundle-identifier", "com.apple.mail"}}}};
  const PropertyListValue copy = PropertyListValue::Dictionary{
      {"tile-type", "file-tile"},
      {"tile-data", PropertyListValue::Dictionary{{"bundle-identifier", "com.apple.mail"}}}};
  EXPECT_EQ(tile, copy);
  EXPECT_EQ(*tile.find("tile-data")->find("bundle-identifier")->string(), "com.apple.mail");
  EXPECT_EQ(tile.find("missing"), nullptr);
  EXPECT_EQ(PropertyListValue("x").find("x"), nullptr);
  EXPECT_NE(PropertyListValue(PropertyListValue::Array{1, 2}),
            PropertyListValue(PropertyListValue::Array{1}));
  EXPECT_NE(PropertyListValue(PropertyListValue::Array{}),
            PropertyListValue(PropertyListValue::Dictionary{}));
}

TEST(KeyValueStoreTest, TypedReadsFollowTheStoredKind) {
  InMemoryKeyValueStore store;
  store.set("s", "standard");
  store.set("i", 2);
  store.set("r", 2.9);
  store.set("b", true);
  store.set("huge", 1e300);
  EXPECT_EQ(store.string("s"), "standard");
  EXPECT_EQ(store.string("i"), std::nullopt);
  EXPECT_EQ(store.integer("i"), 2);
  EXPECT_EQ(store.integer("r"), 2);
  EXPECT_EQ(store.integer("b"), 1);
  EXPECT_EQ(store.integer("s"), 0);
  EXPECT_EQ(store.integer("huge"), 0);
  EXPECT_EQ(store.integer("absent"), 0);
  EXPECT_TRUE(store.isTrue("b"));
  EXPECT_FALSE(store.isTrue("i"));
  store.remove("s");
  store.remove("never-there");
  EXPECT_FALSE(store.object("s").has_value());
}

} // namespace
} // namespace quenby
