#include "strings/LocalizableStringsCatalog.hpp"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <fstream>
#include <sstream>
#include <utility>

namespace quenby {
namespace {

namespace fs = std::filesystem;

bool isSpace(char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; }
bool isDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }
bool isWordChar(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_'; }

void appendUTF8(std::string& out, std::uint32_t code) {
  const auto byte = [&](std::uint32_t bits) { out += static_cast<char>(bits); };
  if (code < 0x80) {
    byte(code);
  } else if (code < 0x800) {
    byte(0xC0 | (code >> 6));
    byte(0x80 | (code & 0x3F));
  } else if (code < 0x10000) {
    byte(0xE0 | (code >> 12));
    byte(0x80 | ((code >> 6) & 0x3F));
    byte(0x80 | (code & 0x3F));
  } else {
    byte(0xF0 | (code >> 18));
    byte(0x80 | ((code >> 12) & 0x3F));
    byte(0x80 | ((code >> 6) & 0x3F));
    byte(0x80 | (code & 0x3F));
  }
}

// Decodes the C++ escape sequence whose backslash is just before s[i], leaving i past it.
void appendEscape(std::string_view s, std::size_t& i, std::string& out) {
  constexpr std::string_view kLetters = "ntrabfv";
  constexpr std::string_view kMeanings = "\n\t\r\a\b\f\v";
  const auto digit = [](char c) -> std::uint32_t {
    const auto lower = std::tolower(static_cast<unsigned char>(c));
    return isDigit(c) ? c - '0' : lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : 16;
  };
  const auto number = [&](std::uint32_t base, std::size_t maxDigits) {
    std::uint32_t value = 0;
    for (std::size_t n = 0; n < maxDigits && i < s.size() && digit(s[i]) < base; ++n) {
      value = value * base + digit(s[i++]);
    }
    return value;
  };
  const char e = s[i++];
  if (const auto at = kLetters.find(e); at != std::string_view::npos) {
    out += kMeanings[at];
  } else if (e == 'x') {
    out += static_cast<char>(number(16, std::string_view::npos));
  } else if (e == 'u' || e == 'U') {
    appendUTF8(out, number(16, e == 'u' ? 4 : 8));
  } else if (e >= '0' && e <= '7') {
    --i;
    out += static_cast<char>(number(8, 3));
  } else {
    out += e; // \" \\ \' \?
  }
}

struct Token {
  enum class Kind { word, literal, punctuation } kind;
  std::string text; // a literal's decoded contents
  int line;
};

// Just enough of a C++ lexer to see string literals, words and punctuation, skipping comments and
// character literals (which may hold a quote).
std::vector<Token> tokenize(std::string_view s) {
  std::vector<Token> tokens;
  std::size_t i = 0;
  int line = 1;
  const auto skipPast = [&](std::string_view end) {
    const auto at = s.find(end, i);
    const auto stop = at == std::string_view::npos ? s.size() : at + end.size();
    line += static_cast<int>(std::count(s.begin() + i, s.begin() + stop, '\n'));
    i = stop;
  };
  while (i < s.size()) {
    const char c = s[i];
    if (s.substr(i, 2) == "//") {
      skipPast("\n");
    } else if (s.substr(i, 2) == "/*") {
      i += 2;
      skipPast("*/");
    } else if (isSpace(c)) {
      line += c == '\n' ? 1 : 0;
      ++i;
    } else if (c == '"' || c == '\'') {
      Token token{Token::Kind::literal, "", line};
      for (++i; i < s.size() && s[i] != c && s[i] != '\n';) {
        if (s[i++] != '\\') {
          token.text += s[i - 1];
        } else if (i < s.size()) {
          appendEscape(s, i, token.text);
        }
      }
      i += i < s.size() && s[i] == c ? 1 : 0;
      if (c == '"') {
        tokens.push_back(std::move(token));
      }
    } else if (isWordChar(c)) {
      const auto start = i;
      // A number's digit separators are quotes too.
      while (i < s.size() && (isWordChar(s[i]) || (s[i] == '\'' && isDigit(c)))) {
        ++i;
      }
      tokens.push_back({Token::Kind::word, std::string(s.substr(start, i - start)), line});
    } else {
      tokens.push_back({Token::Kind::punctuation, std::string(1, c), line});
      ++i;
    }
  }
  return tokens;
}

constexpr std::string_view kStringsPlain = "\"\\\n\r\t";
constexpr std::string_view kStringsEscaped = "\"\\nrt";

std::string escapedForStrings(std::string_view text) {
  std::string out;
  for (const char c : text) {
    if (const auto at = kStringsPlain.find(c); at != std::string_view::npos) {
      out += '\\';
      out += kStringsEscaped[at];
    } else {
      out += c;
    }
  }
  return out;
}

std::string trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(" \t\n");
  return first == std::string_view::npos
             ? ""
             : std::string(text.substr(first, text.find_last_not_of(" \t\n") + 1 - first));
}

std::string inQuotes(std::string_view text) { return "\"" + std::string(text) + "\""; }

} // namespace

void scanSource(std::string_view source, const std::string& name, Scan& scan) {
  const auto tokens = tokenize(source);
  const auto is = [&](std::size_t i, std::string_view text) {
    return i < tokens.size() && tokens[i].kind != Token::Kind::literal && tokens[i].text == text;
  };
  for (std::size_t i = 0; i + 2 < tokens.size(); ++i) {
    if (!is(i, "constexpr") || !is(i + 1, "LocalizedText") ||
        tokens[i + 2].kind != Token::Kind::word) {
      continue;
    }
    auto j = i + 3;
    const auto accept = [&](std::string_view text) {
      if (!is(j, text)) {
        return false;
      }
      ++j;
      return true;
    };
    accept("=");
    bool readable = accept("{");
    std::vector<std::string> fields;
    while (readable && fields.size() < 3) {
      const auto start = j;
      auto& field = fields.emplace_back();
      for (; j < tokens.size() && tokens[j].kind == Token::Kind::literal; ++j) {
        field += tokens[j].text; // adjacent literals concatenate
      }
      readable = j > start && (accept(",") || fields.size() == 3);
    }
    const auto where = name + ":" + std::to_string(tokens[i].line) + ": ";
    if (!readable || !accept("}")) {
      scan.problems.push_back(where + tokens[i + 2].text +
                              " is not three string literals; it cannot be read");
      continue;
    }
    const LocalizableString text{fields[1], fields[2]};
    const auto [found, inserted] = scan.strings.try_emplace(fields[0], text);
    if (!inserted && found->second != text) {
      scan.problems.push_back(where + inQuotes(fields[0]) +
                              " is declared elsewhere with different texts");
    }
    i = j - 1;
  }
}

Scan scanSourceTree(const fs::path& root) {
  std::vector<fs::path> files;
  std::error_code error; // a missing src/ scans as empty
  for (const auto& item : fs::recursive_directory_iterator(root / "src", error)) {
    const auto extension = item.path().extension();
    if (item.is_regular_file() &&
        (extension == ".hpp" || extension == ".h" || extension == ".cpp" || extension == ".mm")) {
      files.push_back(item.path());
    }
  }
  std::sort(files.begin(), files.end());
  Scan scan;
  for (const auto& file : files) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream contents;
    contents << in.rdbuf();
    scanSource(contents.str(), fs::relative(file, root).generic_string(), scan);
  }
  return scan;
}

fs::path stringsFilePath(const fs::path& root) {
  return root / "resources" / "en.lproj" / "Localizable.strings";
}

std::string renderStringsFile(const LocalizableStrings& strings) {
  std::string out =
      "/* Generated from the LocalizedText declarations under src/ by scripts/update-strings\n"
      "   (make strings). Do not edit: change the declaration and regenerate. */\n\n";
  for (const auto& [key, text] : strings) {
    out += "/* " + text.comment + " */\n";
    out += inQuotes(escapedForStrings(key)) + " = " + inQuotes(escapedForStrings(text.english)) +
           ";\n\n";
  }
  return out;
}

std::optional<LocalizableStrings> parseStringsFile(std::string_view s) {
  LocalizableStrings strings;
  std::string comment;
  std::size_t i = 0;
  const auto skipSpace = [&] {
    while (i < s.size() && isSpace(s[i])) {
      ++i;
    }
  };
  const auto accept = [&](char c) {
    skipSpace();
    if (i == s.size() || s[i] != c) {
      return false;
    }
    ++i;
    return true;
  };
  const auto readQuoted = [&]() -> std::optional<std::string> {
    if (!accept('"')) {
      return std::nullopt;
    }
    std::string text;
    while (i < s.size() && s[i] != '"') {
      if (s[i++] != '\\' || i == s.size()) {
        text += s[i - 1];
        continue;
      }
      const auto at = kStringsEscaped.find(s[i++]);
      text += at == std::string_view::npos ? s[i - 1] : kStringsPlain[at];
    }
    if (i == s.size()) {
      return std::nullopt;
    }
    ++i;
    return text;
  };
  for (skipSpace(); i < s.size(); skipSpace()) {
    if (s.substr(i, 2) == "/*") {
      const auto end = s.find("*/", i + 2);
      if (end == std::string_view::npos) {
        return std::nullopt;
      }
      comment = trimmed(s.substr(i + 2, end - i - 2));
      i = end + 2;
      continue;
    }
    const auto key = readQuoted();
    std::optional<std::string> english;
    if (!key || !accept('=') || !(english = readQuoted()) || !accept(';')) {
      return std::nullopt;
    }
    strings[*key] = {std::move(*english), std::exchange(comment, {})};
  }
  return strings;
}

std::vector<std::string> differences(const LocalizableStrings& declared,
                                     const LocalizableStrings& file) {
  std::vector<std::string> out;
  for (const auto& [key, text] : declared) {
    const auto found = file.find(key);
    if (found == file.end()) {
      out.push_back(inQuotes(key) + " is declared but missing from Localizable.strings");
      continue;
    }
    if (found->second.english != text.english) {
      out.push_back(inQuotes(key) + ": the sources say " + inQuotes(text.english) +
                    ", the file says " + inQuotes(found->second.english));
    }
    if (found->second.comment != text.comment) {
      out.push_back(inQuotes(key) + ": the comment differs (sources: " + inQuotes(text.comment) +
                    ", file: " + inQuotes(found->second.comment) + ")");
    }
  }
  for (const auto& [key, text] : file) {
    if (!declared.contains(key)) {
      out.push_back(inQuotes(key) + " is in Localizable.strings but declared nowhere");
    }
  }
  return out;
}

} // namespace quenby
