#include "ui/editor/ApplicationPicker.hpp"

#include "shortcuts/mapping/LetterMappingRecord.hpp"

#include <algorithm>
#include <array>
#include <iterator>

namespace quenby {
namespace {

// The base letters of U+00C0 to U+00FF, lower case; '\0' where there is none (×, ÷) and a
// multi-letter form is not worth the trouble (Æ, ß match themselves).
constexpr std::array<char, 64> kLatin1Bases{
    'a', 'a', 'a', 'a', 'a', 'a', 0,   'c', 'e', 'e', 'e', 'e', 'i', 'i', 'i', 'i',
    'd', 'n', 'o', 'o', 'o', 'o', 'o', 0,   'o', 'u', 'u', 'u', 'u', 'y', 0,   0,
    'a', 'a', 'a', 'a', 'a', 'a', 0,   'c', 'e', 'e', 'e', 'e', 'i', 'i', 'i', 'i',
    'd', 'n', 'o', 'o', 'o', 'o', 'o', 0,   'o', 'u', 'u', 'u', 'u', 'y', 0,   'y'};

/// `text` with ASCII letters lower-cased and accented Latin-1 letters folded to their base; any
/// other character is kept as its bytes, so it still matches itself.
std::string folded(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t index = 0; index < text.size(); ++index) {
    const auto byte = static_cast<unsigned char>(text[index]);
    // Combining accents (U+0300–U+036F, CC 80–CD AF) follow their letter in decomposed text,
    // as file names on a Mac are spelled.
    if ((byte == 0xCC || byte == 0xCD) && index + 1 < text.size()) {
      const auto next = static_cast<unsigned char>(text[index + 1]);
      if (next >= 0x80 && (byte == 0xCC ? next <= 0xBF : next <= 0xAF)) {
        ++index;
        continue;
      }
    }
    // U+00C0–U+00FF are encoded as C3 80–C3 BF.
    if (byte == 0xC3 && index + 1 < text.size()) {
      const auto next = static_cast<unsigned char>(text[index + 1]);
      if (next >= 0x80 && next <= 0xBF && kLatin1Bases[next - 0x80] != 0) {
        result.push_back(kLatin1Bases[next - 0x80]);
        ++index;
        continue;
      }
    }
    result.push_back(byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a')
                                                : static_cast<char>(byte));
  }
  return result;
}

} // namespace

bool ApplicationPicker::nameMatches(std::string_view name, std::string_view search) {
  const auto wanted = folded(LetterMappingRecord::trimmed(search));
  return wanted.empty() || folded(name).find(wanted) != std::string::npos;
}

void ApplicationPicker::open() {
  all_ = catalog_.scan();
  searchText_.clear();
  filter();
}

void ApplicationPicker::setSearchText(std::string_view text) {
  searchText_ = std::string(text);
  filter();
}

void ApplicationPicker::filter() {
  shown_.clear();
  std::copy_if(all_.begin(), all_.end(), std::back_inserter(shown_),
               [this](const auto& application) {
                 return nameMatches(application.displayName, searchText_);
               });
}

} // namespace quenby
