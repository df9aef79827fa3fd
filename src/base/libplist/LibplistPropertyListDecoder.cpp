#include "base/libplist/LibplistPropertyListDecoder.hpp"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <memory>
#include <optional>
#include <plist/plist.h>
#include <string_view>
#include <vector>

namespace quenby {
namespace {

using Error = PropertyListDecodingError;

struct PlistFree {
  void operator()(void* node) const { plist_free(node); }
};
using PlistNode = std::unique_ptr<void, PlistFree>;

struct MallocFree {
  void operator()(void* memory) const { std::free(memory); }
};
template <typename T> using MallocPointer = std::unique_ptr<T, MallocFree>;

Error malformed(std::string message) { return {Error::Kind::malformed, std::move(message)}; }

Error tooDeep() {
  return {Error::Kind::tooDeep, "the property list nests deeper than " +
                                    std::to_string(PropertyListDecoding::kMaximumDepth) +
                                    " levels"};
}

// --- XML ------------------------------------------------------------------------------------

// Measures the element nesting of an XML document, tokenised the way libplist's reader does
// (processing instructions, comments, CDATA and DOCTYPE are skipped by the same rules), so that
// it never sees less nesting than libplist would build. Where the two could part ways the scan
// counts more, never less: it keeps going past errors that would stop libplist, and counts
// every unclosed tag, not only arrays and dictionaries. Versions of libplist differ on whether
// a double-quoted section hides the markup in it, so a quoted '<' or '>' inside a tag, or an
// unclosed quote, is refused outright.
class XMLNestingCheck {
public:
  explicit XMLNestingCheck(std::string_view text) : text_(text) {}

  std::optional<Error> run(std::size_t limit) {
    std::size_t depth = 0;
    std::size_t position = 0;
    while ((position = text_.find('<', position)) != npos) {
      const std::string_view rest = text_.substr(position + 1);
      std::size_t next = npos;
      if (rest.starts_with('?')) {
        next = pastInMarkup(position + 1, "?>");
      } else if (rest.starts_with("!--")) {
        next = pastPlain(position + 4, "-->");
      } else if (rest.starts_with("![CDATA[")) {
        next = pastPlain(position + 9, "]]>");
      } else if (rest.starts_with("!DOCTYPE")) {
        const std::size_t stop = stopInMarkup(position + 9, "[>");
        if (stop != npos) {
          next = text_[stop] == '[' ? pastInMarkup(stop, "]>") : stop + 1;
        }
      } else {
        const std::size_t stop = stopInMarkup(position + 1, "<>");
        if (rest.starts_with('/')) {
          depth = depth > 0 ? depth - 1 : 0;
        } else if (stop == npos || text_[stop] != '>' || text_[stop - 1] != '/') {
          if (++depth > limit) {
            return tooDeep();
          }
        }
        // A tag cut short by another '<' is an error to libplist; the scan resumes there.
        next = stop == npos || text_[stop] == '<' ? stop : stop + 1;
      }
      if (badQuote_) {
        return malformed("the XML property list quotes markup characters inside a tag");
      }
      if (next == npos) {
        break; // libplist stops at the same unterminated construct
      }
      position = next;
    }
    return std::nullopt;
  }

private:
  static constexpr auto npos = std::string_view::npos;

  std::size_t pastPlain(std::size_t from, std::string_view terminator) const {
    const std::size_t found = text_.find(terminator, from);
    return found == npos ? npos : found + terminator.size();
  }

  // The first of `stops` at or after `from`, stepping over double-quoted sections.
  std::size_t stopInMarkup(std::size_t from, std::string_view stops) {
    for (std::size_t i = from; i < text_.size(); ++i) {
      if (text_[i] == '"') {
        const std::size_t close = text_.find('"', i + 1);
        if (close == npos || text_.substr(i + 1, close - i - 1).find_first_of("<>") != npos) {
          badQuote_ = true;
          return npos;
        }
        i = close;
      } else if (stops.find(text_[i]) != npos) {
        return i;
      }
    }
    return npos;
  }

  // Just past `terminator` at or after `from`, stepping over double-quoted sections.
  std::size_t pastInMarkup(std::size_t from, std::string_view terminator) {
    for (std::size_t i = from; i < text_.size();) {
      const std::size_t stop = stopInMarkup(i, terminator.substr(0, 1));
      if (stop == npos) {
        return npos;
      }
      if (text_.substr(stop).starts_with(terminator)) {
        return stop + terminator.size();
      }
      i = stop + 1;
    }
    return npos;
  }

  std::string_view text_;
  bool badQuote_ = false;
};

// --- Binary ---------------------------------------------------------------------------------

// Walks a binary property list's object graph without building it, checking every reachable
// object's bounds, its references, cycles, the nesting of containers and how many nodes the
// tree grows to once shared objects are expanded (libplist copies a shared object at every
// reference, so a small file of objects that each refer twice to the next grows exponentially).
class BinaryStructureCheck {
public:
  explicit BinaryStructureCheck(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

  std::optional<Error> run() {
    constexpr std::size_t kHeaderSize = 8;
    constexpr std::size_t kTrailerSize = 32;
    if (bytes_.size() < kHeaderSize + 1 + kTrailerSize) {
      return malformed("the binary property list is truncated");
    }
    const std::uint8_t* trailer = bytes_.data() + bytes_.size() - kTrailerSize;
    offsetSize_ = trailer[6];
    referenceSize_ = trailer[7];
    objectCount_ = bigEndian(trailer + 8, 8);
    const std::uint64_t topObject = bigEndian(trailer + 16, 8);
    tableOffset_ = bigEndian(trailer + 24, 8);
    const std::uint64_t objectsEnd = bytes_.size() - kTrailerSize;
    if (offsetSize_ < 1 || offsetSize_ > 8 || referenceSize_ < 1 || referenceSize_ > 8 ||
        objectCount_ == 0 || topObject >= objectCount_ || tableOffset_ < kHeaderSize + 1 ||
        tableOffset_ > objectsEnd || objectCount_ > (objectsEnd - tableOffset_) / offsetSize_) {
      return malformed("the binary property list's trailer is inconsistent");
    }
    expansionLimit_ = std::max<std::uint64_t>(4096, 4 * static_cast<std::uint64_t>(bytes_.size()));
    state_.assign(objectCount_, State::unseen);
    depth_.assign(objectCount_, 0);
    expanded_.assign(objectCount_, 0);
    return walk(topObject);
  }

private:
  enum class State : std::uint8_t { unseen, onPath, done };

  struct Frame {
    std::uint64_t object;
    std::uint64_t referencesStart;
    std::uint64_t referenceCount;
    std::uint64_t nextReference = 0;
    std::uint16_t deepestChild = 0;
    std::uint64_t expandedChildren = 0;
  };

  struct Inspection {
    bool isContainer = false;
    std::uint64_t referencesStart = 0;
    std::uint64_t referenceCount = 0;
  };

  std::uint64_t bigEndian(const std::uint8_t* at, std::size_t width) const {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < width; ++i) {
      value = (value << 8) | at[i];
    }
    return value;
  }

  // The object's extent and references, or nothing when it does not fit before the offset
  // table or is of no known kind.
  std::optional<Inspection> inspect(std::uint64_t object) const {
    const std::uint64_t offset =
        bigEndian(bytes_.data() + tableOffset_ + object * offsetSize_, offsetSize_);
    if (offset < 8 || offset >= tableOffset_) {
      return std::nullopt;
    }
    const std::uint8_t marker = bytes_[offset];
    const unsigned type = marker >> 4;
    const unsigned info = marker & 0x0F;
    std::uint64_t position = offset + 1;
    const auto fits = [&](std::uint64_t length) { return length <= tableOffset_ - position; };
    const auto count = [&]() -> std::optional<std::uint64_t> {
      if (info != 0x0F) {
        return info;
      }
      if (!fits(1)) {
        return std::nullopt;
      }
      const std::uint8_t integerMarker = bytes_[position];
      if ((integerMarker >> 4) != 0x1 || (integerMarker & 0x0F) > 3) {
        return std::nullopt;
      }
      const std::size_t width = std::size_t{1} << (integerMarker & 0x0F);
      ++position;
      if (!fits(width)) {
        return std::nullopt;
      }
      const std::uint64_t value = bigEndian(bytes_.data() + position, width);
      position += width;
      return value;
    };
    const auto scalarIf = [](bool valid) {
      return valid ? std::optional<Inspection>(Inspection{}) : std::nullopt;
    };
    switch (type) {
    case 0x0: // null, false, true, fill
      return scalarIf(info == 0x0 || info == 0x8 || info == 0x9 || info == 0xF);
    case 0x1: // integer
      return scalarIf(info <= 4 && fits(std::uint64_t{1} << info));
    case 0x2: // real
      return scalarIf((info == 2 || info == 3) && fits(std::uint64_t{1} << info));
    case 0x3: // date
      return scalarIf(info == 3 && fits(8));
    case 0x4: // data
    {
      const auto length = count();
      return scalarIf(length && fits(*length));
    }
    // libplist aborts on a string with a NUL character in it, so such strings are refused.
    case 0x5: // ASCII string
    {
      const auto length = count();
      if (!length || !fits(*length)) {
        return std::nullopt;
      }
      const auto* begin = bytes_.data() + position;
      return scalarIf(std::find(begin, begin + *length, 0) == begin + *length);
    }
    case 0x6: // UTF-16 string
    {
      const auto length = count();
      if (!length || *length > (tableOffset_ - position) / 2) {
        return std::nullopt;
      }
      for (std::uint64_t i = 0; i < *length; ++i) {
        if (bytes_[position + 2 * i] == 0 && bytes_[position + 2 * i + 1] == 0) {
          return std::nullopt;
        }
      }
      return Inspection{};
    }
    case 0x8: // UID
      return scalarIf(fits(info + 1));
    case 0xA: // array
    case 0xC: // set
    case 0xD: // dictionary: keys, then values
    {
      auto entries = count();
      if (!entries) {
        return std::nullopt;
      }
      if (type == 0xD) {
        if (*entries > std::numeric_limits<std::uint64_t>::max() / 2) {
          return std::nullopt;
        }
        *entries *= 2;
      }
      if (*entries > (tableOffset_ - position) / referenceSize_) {
        return std::nullopt;
      }
      return Inspection{true, position, *entries};
    }
    default:
      return std::nullopt;
    }
  }

  std::optional<Error> walk(std::uint64_t topObject) {
    const auto top = inspect(topObject);
    if (!top) {
      return malformed(
          "the binary property list holds a damaged object, or one libplist cannot carry");
    }
    if (!top->isContainer) {
      return std::nullopt;
    }
    std::vector<Frame> path;
    path.push_back({topObject, top->referencesStart, top->referenceCount});
    state_[topObject] = State::onPath;
    while (!path.empty()) {
      Frame& frame = path.back();
      if (frame.nextReference == frame.referenceCount) {
        const std::uint64_t object = frame.object;
        depth_[object] = static_cast<std::uint16_t>(frame.deepestChild + 1);
        expanded_[object] = std::min(expansionLimit_ + 1, frame.expandedChildren + 1);
        state_[object] = State::done;
        path.pop_back();
        if (!path.empty() && !absorb(path.back(), object)) {
          return tooManyExpansions();
        }
        continue;
      }
      const std::uint64_t child =
          bigEndian(bytes_.data() + frame.referencesStart + frame.nextReference * referenceSize_,
                    referenceSize_);
      ++frame.nextReference;
      if (child >= objectCount_) {
        return malformed("the binary property list refers to a missing object");
      }
      if (state_[child] == State::onPath) {
        return malformed("the binary property list contains itself");
      }
      if (state_[child] == State::unseen) {
        const auto inspection = inspect(child);
        if (!inspection) {
          return malformed(
              "the binary property list holds a damaged object, or one libplist cannot carry");
        }
        if (inspection->isContainer) {
          if (path.size() >= static_cast<std::size_t>(PropertyListDecoding::kMaximumDepth)) {
            return tooDeep();
          }
          state_[child] = State::onPath;
          path.push_back({child, inspection->referencesStart, inspection->referenceCount});
          continue;
        }
        state_[child] = State::done;
        expanded_[child] = 1;
      }
      if (path.size() + depth_[child] >
          static_cast<std::size_t>(PropertyListDecoding::kMaximumDepth)) {
        return tooDeep();
      }
      if (!absorb(frame, child)) {
        return tooManyExpansions();
      }
    }
    return std::nullopt;
  }

  // Adds a finished child to its parent; false once the parent's tree grows past the limit.
  bool absorb(Frame& parent, std::uint64_t child) {
    parent.deepestChild = std::max(parent.deepestChild, depth_[child]);
    parent.expandedChildren =
        std::min(expansionLimit_ + 1, parent.expandedChildren + expanded_[child]);
    return parent.expandedChildren <= expansionLimit_;
  }

  static Error tooManyExpansions() {
    return malformed("the binary property list refers to shared objects too often");
  }

  std::span<const std::uint8_t> bytes_;
  std::size_t offsetSize_ = 0;
  std::size_t referenceSize_ = 0;
  std::uint64_t objectCount_ = 0;
  std::uint64_t tableOffset_ = 0;
  std::uint64_t expansionLimit_ = 0;
  std::vector<State> state_;
  std::vector<std::uint16_t> depth_;
  std::vector<std::uint64_t> expanded_;
};

// --- Conversion -----------------------------------------------------------------------------

// Recursion is bounded: the input's nesting was measured before libplist built the tree, and
// the depth is checked again here.
class Converter {
public:
  std::optional<PropertyListValue> convert(plist_t node, int depth) {
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
      std::uint8_t value = 0;
      plist_get_bool_val(node, &value);
      return PropertyListValue(value != 0);
    }
    case PLIST_UINT: {
      std::uint64_t value = 0;
      plist_get_uint_val(node, &value);
      // Negative integers are stored as their 64-bit two's complement.
      return PropertyListValue(static_cast<std::int64_t>(value));
    }
    case PLIST_REAL: {
      double value = 0;
      plist_get_real_val(node, &value);
      return PropertyListValue(value);
    }
    case PLIST_STRING: {
      char* raw = nullptr;
      plist_get_string_val(node, &raw);
      const MallocPointer<char> text(raw);
      return PropertyListValue(std::string(text ? text.get() : ""));
    }
    case PLIST_DATA: {
      char* raw = nullptr;
      std::uint64_t length = 0;
      plist_get_data_val(node, &raw, &length);
      const MallocPointer<char> bytes(raw);
      const auto* begin = reinterpret_cast<const std::uint8_t*>(bytes.get());
      return PropertyListValue(bytes ? PropertyListValue::Data(begin, begin + length)
                                     : PropertyListValue::Data());
    }
    case PLIST_DATE: {
      std::int32_t seconds = 0;
      std::int32_t microseconds = 0;
      plist_get_date_val(node, &seconds, &microseconds);
      // libplist splits the stored seconds into whole seconds and the fraction's magnitude.
      const double fraction = std::fabs(static_cast<double>(microseconds)) / 1e6;
      return PropertyListValue(
          PropertyListDate{seconds < 0 ? seconds - fraction : seconds + fraction});
    }
    case PLIST_ARRAY:
      return convertArray(node, depth + 1);
    case PLIST_DICT:
      return convertDictionary(node, depth + 1);
    case PLIST_KEY:
      return fail(malformed("a dictionary key stands outside a dictionary"));
    case PLIST_UID:
      return fail(malformed("a keyed-archiver UID is not a property-list value"));
    case PLIST_NONE:
      break;
    }
    return fail(malformed("the property list holds a value of no known kind"));
  }

  Error error = malformed("the property list could not be read");

private:
  std::optional<PropertyListValue> fail(Error reason) {
    error = std::move(reason);
    return std::nullopt;
  }

  std::optional<PropertyListValue> convertArray(plist_t node, int depth) {
    if (depth > PropertyListDecoding::kMaximumDepth) {
      return fail(tooDeep());
    }
    const std::uint32_t size = plist_array_get_size(node);
    PropertyListValue::Array elements;
    elements.reserve(size);
    for (std::uint32_t i = 0; i < size; ++i) {
      auto element = convert(plist_array_get_item(node, i), depth);
      if (!element) {
        return std::nullopt;
      }
      elements.push_back(std::move(*element));
    }
    return PropertyListValue(std::move(elements));
  }

  std::optional<PropertyListValue> convertDictionary(plist_t node, int depth) {
    if (depth > PropertyListDecoding::kMaximumDepth) {
      return fail(tooDeep());
    }
    plist_dict_iter rawIterator = nullptr;
    plist_dict_new_iter(node, &rawIterator);
    const MallocPointer<void> iterator(rawIterator);
    PropertyListValue::Dictionary entries;
    while (true) {
      char* rawKey = nullptr;
      plist_t value = nullptr;
      plist_dict_next_item(node, rawIterator, &rawKey, &value);
      const MallocPointer<char> key(rawKey);
      if (value == nullptr) {
        break;
      }
      auto converted = convert(value, depth);
      if (!converted) {
        return std::nullopt;
      }
      entries.insert_or_assign(std::string(key ? key.get() : ""), std::move(*converted));
    }
    return PropertyListValue(std::move(entries));
  }
};

constexpr std::string_view kBinaryMagic = "bplist";
constexpr std::string_view kBinaryMagicAndVersion = "bplist00";

} // namespace

Expected<PropertyListValue, PropertyListDecodingError>
LibplistPropertyListDecoder::decode(std::span<const std::uint8_t> bytes) const {
  if (bytes.empty()) {
    return Unexpected{Error{Error::Kind::empty, "there are no bytes to decode"}};
  }
  if (bytes.size() > std::numeric_limits<std::uint32_t>::max()) {
    return Unexpected{malformed("the property list is too large")};
  }
  const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  const auto length = static_cast<std::uint32_t>(bytes.size());
  plist_t raw = nullptr;
  if (text.starts_with(kBinaryMagic)) {
    if (!text.starts_with(kBinaryMagicAndVersion)) {
      return Unexpected{malformed("the binary property list has an unknown version")};
    }
    if (auto problem = BinaryStructureCheck(bytes).run()) {
      return Unexpected{std::move(*problem)};
    }
    plist_from_bin(text.data(), length, &raw);
  } else {
    // The element around the root and a leaf element add two levels to the values' nesting.
    const std::size_t limit = PropertyListDecoding::kMaximumDepth + 2;
    if (auto problem = XMLNestingCheck(text).run(limit)) {
      return Unexpected{std::move(*problem)};
    }
    // libplist aborts on a NUL character inside a string; XML cannot hold one anyway.
    if (text.find('\0') != std::string_view::npos) {
      return Unexpected{malformed("the XML property list contains a NUL character")};
    }
    // A terminated copy, so that no look-ahead in the reader can run off the caller's buffer.
    const std::string terminated(text);
    plist_from_xml(terminated.c_str(), length, &raw);
  }
  const PlistNode root(raw);
  if (!root) {
    return Unexpected{malformed("the bytes are not a property list")};
  }
  Converter converter;
  auto value = converter.convert(root.get(), 0);
  if (!value) {
    return Unexpected{std::move(converter.error)};
  }
  return std::move(*value);
}

} // namespace quenby
