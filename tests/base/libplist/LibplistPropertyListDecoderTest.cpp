#include "base/libplist/LibplistPropertyListDecoder.hpp"

#include "simulation/LibplistPropertyListEncoder.hpp"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace quenby {
namespace {

using Bytes = std::vector<std::uint8_t>;
using Kind = PropertyListDecodingError::Kind;

Bytes bytesOf(std::string_view text) { return Bytes(text.begin(), text.end()); }

// Hand-written binary property lists: object i is written as `objects[i]`, references and
// offsets are four bytes wide, object 0 is the top.
Bytes binaryPlist(const std::vector<Bytes>& objects) {
  Bytes out = bytesOf("bplist00");
  std::vector<std::uint32_t> offsets;
  for (const auto& object : objects) {
    offsets.push_back(static_cast<std::uint32_t>(out.size()));
    out.insert(out.end(), object.begin(), object.end());
  }
  const std::uint64_t table = out.size();
  const auto put = [&out](std::uint64_t value, int width) {
    for (int shift = (width - 1) * 8; shift >= 0; shift -= 8) {
      out.push_back(static_cast<std::uint8_t>(value >> shift));
    }
  };
  for (const auto offset : offsets) {
    put(offset, 4);
  }
  out.insert(out.end(), 6, 0);
  out.push_back(4);
  out.push_back(4);
  put(objects.size(), 8);
  put(0, 8);
  put(table, 8);
  return out;
}

Bytes arrayObject(const std::vector<std::uint32_t>& references) {
  Bytes object;
  if (references.size() < 15) {
    object.push_back(static_cast<std::uint8_t>(0xA0 | references.size()));
  } else {
    object.push_back(0xAF);
    object.push_back(0x12);
    for (int shift = 24; shift >= 0; shift -= 8) {
      object.push_back(static_cast<std::uint8_t>(references.size() >> shift));
    }
  }
  for (const auto reference : references) {
    for (int shift = 24; shift >= 0; shift -= 8) {
      object.push_back(static_cast<std::uint8_t>(reference >> shift));
    }
  }
  return object;
}

// `levels` arrays, each holding the next; the innermost is empty.
Bytes nestedBinaryArrays(std::uint32_t levels) {
  std::vector<Bytes> objects;
  for (std::uint32_t i = 0; i + 1 < levels; ++i) {
    objects.push_back(arrayObject({i + 1}));
  }
  objects.push_back(arrayObject({}));
  return binaryPlist(objects);
}

std::string xmlDocument(std::string_view body) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE plist PUBLIC \"-//Apple//DTD "
         "PLIST 1.0//EN\" \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
         "<plist version=\"1.0\">" +
         std::string(body) + "</plist>";
}

std::string repeated(std::string_view piece, int times) {
  std::string out;
  out.reserve(piece.size() * static_cast<std::size_t>(times));
  for (int i = 0; i < times; ++i) {
    out += piece;
  }
  return out;
}

PropertyListValue everyKind() {
  return PropertyListValue::Dictionary{
      {"true", true},
      {"false", false},
      {"zero", 0},
      {"negative", std::int64_t{-42}},
      {"lowest", std::numeric_limits<std::int64_t>::min()},
      {"highest", std::numeric_limits<std::int64_t>::max()},
      {"real", 2.5},
      {"negativeReal", -1234.0625},
      {"string", "Caf\xC3\xA9 \xE2\x9C\x93 <&> \"quoted\""},
      {"emptyString", ""},
      {"data", PropertyListValue::Data{0, 1, 2, 0xFF, 0}},
      {"emptyData", PropertyListValue::Data{}},
      {"date", PropertyListDate{700'000'000}},
      {"beforeReference", PropertyListDate{-86'400}},
      {"array", PropertyListValue::Array{1, "two", PropertyListValue::Array{}}},
      {"nested", PropertyListValue::Dictionary{{"inner", PropertyListValue::Dictionary{}}}},
  };
}

TEST(LibplistPropertyListDecoderTest, RoundTripsEveryKindThroughBinaryAndXML) {
  const LibplistPropertyListDecoder decoder;
  const PropertyListValue value = everyKind();

  const auto binary = decoder.decode(LibplistPropertyListEncoder::encodeBinary(value));
  ASSERT_TRUE(binary.hasValue()) << binary.error().message;
  EXPECT_EQ(*binary, value);

  const std::string xml = LibplistPropertyListEncoder::encodeXML(value);
  const auto fromXML = decoder.decode(bytesOf(xml));
  ASSERT_TRUE(fromXML.hasValue()) << fromXML.error().message;
  EXPECT_EQ(*fromXML, value);

  // Kinds stay apart: a stored true is not the integer 1.
  const auto scalarTrue = decoder.decode(LibplistPropertyListEncoder::encodeBinary(true));
  ASSERT_TRUE(scalarTrue.hasValue());
  EXPECT_EQ(scalarTrue->kind(), PropertyListValue::Kind::boolean);
  const auto one = decoder.decode(LibplistPropertyListEncoder::encodeBinary(1));
  ASSERT_TRUE(one.hasValue());
  EXPECT_EQ(one->kind(), PropertyListValue::Kind::integer);

  // Binary dates keep their fraction of a second, on both sides of the reference date.
  for (const double seconds : {1.25, -5.5, 123456.000001}) {
    const auto date =
        decoder.decode(LibplistPropertyListEncoder::encodeBinary(PropertyListDate{seconds}));
    ASSERT_TRUE(date.hasValue());
    EXPECT_NEAR(date->date()->secondsSinceReferenceDate, seconds, 1e-6) << seconds;
  }
}

TEST(LibplistPropertyListDecoderTest, ReportsTypedErrors) {
  const LibplistPropertyListDecoder decoder;
  EXPECT_EQ(decoder.decode({}).error().kind, Kind::empty);
  for (const std::string_view garbage :
       {"hello", "<plist><array><string>x</array></plist>", "bplist01\0\0\0\0", "bplist00",
        "<plist><uid>1</uid></plist>", "<<<<>>>>", "\xEF\xBB\xBF"}) {
    const auto result = decoder.decode(bytesOf(garbage));
    ASSERT_FALSE(result.hasValue()) << garbage;
    EXPECT_EQ(result.error().kind, Kind::malformed) << garbage;
  }
  // A keyed-archiver UID is not a value.
  EXPECT_EQ(decoder.decode(binaryPlist({{0x80, 0x01}})).error().kind, Kind::malformed);
  // A reference to a missing object, an array that contains itself.
  EXPECT_EQ(decoder.decode(binaryPlist({arrayObject({7})})).error().kind, Kind::malformed);
  EXPECT_EQ(decoder.decode(binaryPlist({arrayObject({0})})).error().kind, Kind::malformed);
  // Quoted markup characters inside a tag could be read two ways.
  EXPECT_EQ(decoder.decode(bytesOf(xmlDocument("<array a=\"<!--\"></array>"))).error().kind,
            Kind::malformed);
}

TEST(LibplistPropertyListDecoderTest, RefusesNestingBeyondTheLimitWithoutExhaustingTheStack) {
  const LibplistPropertyListDecoder decoder;
  constexpr int limit = PropertyListDecoding::kMaximumDepth;

  const auto xmlNesting = [](int levels) {
    return xmlDocument(repeated("<array>", levels) + repeated("</array>", levels));
  };
  EXPECT_TRUE(decoder.decode(bytesOf(xmlNesting(limit))).hasValue());
  EXPECT_EQ(decoder.decode(bytesOf(xmlNesting(limit + 1))).error().kind, Kind::tooDeep);
  EXPECT_TRUE(decoder.decode(nestedBinaryArrays(limit)).hasValue());
  EXPECT_EQ(decoder.decode(nestedBinaryArrays(limit + 1)).error().kind, Kind::tooDeep);

  // The checks made before libplist runs refuse on their own, not only through the conversion's
  // limit. The XML check counts every element, the leaf and a wrapper libplist disregards alike.
  const auto refusal = [&decoder](const Bytes& bytes) -> std::optional<Kind> {
    const auto result = decoder.decode(bytes);
    return result.hasValue() ? std::nullopt : std::optional(result.error().kind);
  };
  const std::string xmlAtTheLimit =
      repeated("<array>", limit) + "<string>x</string>" + repeated("</array>", limit);
  EXPECT_EQ(refusal(bytesOf(xmlDocument(xmlAtTheLimit))), std::nullopt);
  EXPECT_EQ(refusal(bytesOf(xmlDocument("<plist>" + xmlAtTheLimit + "</plist>"))), Kind::tooDeep);
  // In binary a value that is no property-list value comes first, so the conversion would
  // answer malformed before it reached the nesting.
  const auto binaryBesideAValueNotAllowed = [](std::uint32_t levels) {
    std::vector<Bytes> objects{arrayObject({1, 2}), {0x80, 0x01}};
    for (std::uint32_t i = 2; i < levels; ++i) {
      objects.push_back(arrayObject({i + 1}));
    }
    objects.push_back(arrayObject({}));
    return binaryPlist(objects);
  };
  EXPECT_EQ(refusal(binaryBesideAValueNotAllowed(limit)), Kind::malformed);
  EXPECT_EQ(refusal(binaryBesideAValueNotAllowed(limit + 1)), Kind::tooDeep);

  // Far deeper than libplist's own recursion survives.
  EXPECT_EQ(decoder.decode(bytesOf(xmlNesting(100'000))).error().kind, Kind::tooDeep);
  EXPECT_EQ(
      decoder.decode(bytesOf(xmlDocument(repeated("<dict><key>k</key>", 100'000)))).error().kind,
      Kind::tooDeep);
  EXPECT_EQ(decoder.decode(nestedBinaryArrays(100'000)).error().kind, Kind::tooDeep);

  // Closing tags hidden where the reader skips them do not hide the nesting.
  for (const std::string_view disguise :
       {"<array><!--</array>-->", "<array><![CDATA[</array>]]>", "<array><?x </array> ?>",
        "<array><!DOCTYPE x [</array>]>", "<array a=\"</array>\">"}) {
    const auto result = decoder.decode(bytesOf(xmlDocument(repeated(disguise, 100'000))));
    ASSERT_FALSE(result.hasValue()) << disguise;
  }

  // Objects shared at every level would expand to 2^60 nodes.
  std::vector<Bytes> shared;
  for (std::uint32_t i = 0; i < 60; ++i) {
    shared.push_back(arrayObject({i + 1, i + 1}));
  }
  shared.push_back(arrayObject({}));
  EXPECT_EQ(decoder.decode(binaryPlist(shared)).error().kind, Kind::malformed);
}

// Hostile and damaged input must give a value or a typed error, never a crash or a sanitizer
// report.
TEST(LibplistPropertyListDecoderTest, SurvivesTruncatedFlippedAndRandomInput) {
  const LibplistPropertyListDecoder decoder;
  const Bytes binary = LibplistPropertyListEncoder::encodeBinary(everyKind());
  const Bytes xml = bytesOf(LibplistPropertyListEncoder::encodeXML(everyKind()));
  std::size_t decoded = 0;
  const auto tryDecode = [&](const Bytes& bytes) {
    const auto result = decoder.decode(bytes);
    decoded += result.hasValue() ? 1 : 0;
  };

  for (const Bytes* valid : {&binary, &xml}) {
    for (std::size_t length = 0; length < valid->size(); ++length) {
      tryDecode(Bytes(valid->begin(), valid->begin() + static_cast<std::ptrdiff_t>(length)));
    }
  }

  std::mt19937 random(20240611);
  std::uniform_int_distribution<int> byte(0, 255);
  for (const Bytes* valid : {&binary, &xml}) {
    for (int round = 0; round < 3000; ++round) {
      Bytes damaged = *valid;
      const int flips = 1 + round % 4;
      for (int i = 0; i < flips; ++i) {
        damaged[random() % damaged.size()] = static_cast<std::uint8_t>(byte(random));
      }
      tryDecode(damaged);
    }
  }

  for (int round = 0; round < 3000; ++round) {
    Bytes garbage(random() % 200);
    for (auto& b : garbage) {
      b = static_cast<std::uint8_t>(byte(random));
    }
    if (round % 2 == 0) {
      const std::string_view magic = round % 4 == 0 ? "bplist00" : "<plist><array>";
      garbage.insert(garbage.begin(), magic.begin(), magic.end());
    }
    tryDecode(garbage);
  }
  EXPECT_GT(decoded, 0u); // some damage leaves a readable document, which is fine
}

} // namespace
} // namespace quenby
