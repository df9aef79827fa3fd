#include "shortcuts/mapping/LetterMappingRecord.hpp"

#include <array>

namespace quenby {
namespace {

// Every white space and line-break character outside ASCII, UTF-8 encoded.
constexpr std::array<std::string_view, 19> kUnicodeSpaces{
    "\u0085", "\u00A0", "\u1680", "\u2000", "\u2001", "\u2002", "\u2003",
    "\u2004", "\u2005", "\u2006", "\u2007", "\u2008", "\u2009", "\u200A",
    "\u2028", "\u2029", "\u202F", "\u205F", "\u3000"};

bool isASCIISpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

/// The length of the white space that `text` starts (or, with `atEnd`, ends) with; 0 for none.
std::size_t spaceLength(std::string_view text, bool atEnd) {
  if (text.empty()) {
    return 0;
  }
  if (isASCIISpace(atEnd ? text.back() : text.front())) {
    return 1;
  }
  for (const auto space : kUnicodeSpaces) {
    if (atEnd ? text.ends_with(space) : text.starts_with(space)) {
      return space.size();
    }
  }
  return 0;
}

std::optional<FileURL> applicationURL(std::string_view text) {
  auto url = FileURL::fromString(text);
  if (!url || !url->hasPathExtension("app")) {
    return std::nullopt;
  }
  return url;
}

} // namespace

std::optional<char> LetterMappingRecord::normalizedLetter(std::string_view text) {
  if (text.size() == 1) {
    const char c = text.front();
    if (c >= 'a' && c <= 'z') {
      return static_cast<char>(c - 'a' + 'A');
    }
    if (c >= 'A' && c <= 'Z') {
      return c;
    }
    return std::nullopt;
  }
  // The only letters outside ASCII whose single upper-case form is an ASCII letter.
  if (text == "\u0131") { // dotless i
    return 'I';
  }
  if (text == "\u017F") { // long s
    return 'S';
  }
  return std::nullopt;
}

std::string_view LetterMappingRecord::trimmed(std::string_view text) {
  for (auto length = spaceLength(text, false); length != 0; length = spaceLength(text, false)) {
    text.remove_prefix(length);
  }
  for (auto length = spaceLength(text, true); length != 0; length = spaceLength(text, true)) {
    text.remove_suffix(length);
  }
  return text;
}

std::optional<LetterMappingRecord> LetterMappingRecord::normalized(const Fields& fields) {
  const auto letter = normalizedLetter(fields.letter);
  if (!letter) {
    return std::nullopt;
  }
  const auto bundleIdentifier = trimmed(fields.bundleIdentifier);
  if (bundleIdentifier.empty()) {
    return std::nullopt;
  }
  auto lastKnownURL = applicationURL(fields.lastKnownURL);
  if (!lastKnownURL) {
    return std::nullopt;
  }
  const auto displayName = trimmed(fields.displayName);
  if (displayName.empty()) {
    return std::nullopt;
  }
  return LetterMappingRecord{
      .letter = *letter,
      .bundleIdentifier = std::string(bundleIdentifier),
      .displayName = std::string(displayName),
      .lastKnownURL = std::move(*lastKnownURL),
      .catalogResolvedURL =
          fields.catalogResolvedURL ? applicationURL(*fields.catalogResolvedURL) : std::nullopt,
  };
}

bool LetterMappingRecord::isSpelledBy(const Fields& fields) const {
  if (fields.letter.size() != 1 || fields.letter.front() != letter ||
      fields.bundleIdentifier != bundleIdentifier || fields.displayName != displayName ||
      FileURL::fromString(fields.lastKnownURL) != lastKnownURL ||
      fields.catalogResolvedURL.has_value() != catalogResolvedURL.has_value()) {
    return false;
  }
  return !catalogResolvedURL ||
         FileURL::fromString(*fields.catalogResolvedURL) == catalogResolvedURL;
}

LetterMappingRecord::Fields LetterMappingRecord::fields() const {
  return {
      .letter = std::string(1, letter),
      .bundleIdentifier = bundleIdentifier,
      .displayName = displayName,
      .lastKnownURL = lastKnownURL.absoluteString(),
      .catalogResolvedURL = catalogResolvedURL
                                ? std::optional<std::string>(catalogResolvedURL->absoluteString())
                                : std::nullopt,
  };
}

} // namespace quenby
