// Keeps resources/en.lproj/Localizable.strings in step with the LocalizedText constants declared
// under src/. With QUENBY_UPDATE_STRINGS=1 in the environment it rewrites the file instead
// (scripts/update-strings).

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace quenby {
namespace {

namespace fs = std::filesystem;

struct Declaration {
  std::string key;
  std::string english;
  std::string comment;
  std::string location; // "file:line"
};

struct Entry {
  std::string english;
  std::string comment;
};

struct Scan {
  std::vector<Declaration> declarations;
  std::vector<std::string> problems;
};

void appendUTF8(std::string& out, std::uint32_t code) {
  if (code < 0x80) {
    out += static_cast<char>(code);
  } else if (code < 0x800) {
    out += static_cast<char>(0xC0 | (code >> 6));
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else if (code < 0x10000) {
    out += static_cast<char>(0xE0 | (code >> 12));
    out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (code >> 18));
    out += static_cast<char>(0x80 | ((code >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  }
}

bool isHex(char c) { return std::isxdigit(static_cast<unsigned char>(c)) != 0; }
bool isIdentifierChar(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; }

struct Token {
  enum class Kind { identifier, string, punctuation } kind;
  std::string text; // a string literal's decoded contents
  int line;
};

// Just enough of a C++ lexer to find string literals, identifiers and punctuation while skipping
// comments, character literals and numbers (whose digit separators look like quotes).
class Lexer {
public:
  explicit Lexer(std::string_view source) : s_(source) {}

  std::vector<Token> tokens(std::vector<std::string>& problems) {
    std::vector<Token> out;
    while (i_ < s_.size()) {
      const char c = s_[i_];
      if (c == '\n') {
        ++line_;
        ++i_;
      } else if (std::isspace(static_cast<unsigned char>(c))) {
        ++i_;
      } else if (startsWith("//")) {
        while (i_ < s_.size() && s_[i_] != '\n') {
          ++i_;
        }
      } else if (startsWith("/*")) {
        const auto end = s_.find("*/", i_ + 2);
        const auto stop = end == std::string_view::npos ? s_.size() : end + 2;
        line_ += static_cast<int>(std::count(s_.begin() + i_, s_.begin() + stop, '\n'));
        i_ = stop;
      } else if (c == '"') {
        const int line = line_;
        auto text = stringLiteral(problems);
        out.push_back({Token::Kind::string, std::move(text), line});
      } else if (c == 'R' && startsWith("R\"")) {
        rawStringLiteral();
        out.push_back({Token::Kind::punctuation, "R\"\"", line_});
      } else if (c == '\'') {
        skipCharacterLiteral();
      } else if (std::isdigit(static_cast<unsigned char>(c))) {
        while (i_ < s_.size() && (isIdentifierChar(s_[i_]) || s_[i_] == '.' || s_[i_] == '\'')) {
          ++i_;
        }
      } else if (isIdentifierChar(c)) {
        const auto start = i_;
        while (i_ < s_.size() && isIdentifierChar(s_[i_])) {
          ++i_;
        }
        out.push_back({Token::Kind::identifier, std::string(s_.substr(start, i_ - start)), line_});
      } else {
        out.push_back({Token::Kind::punctuation, std::string(1, c), line_});
        ++i_;
      }
    }
    return out;
  }

private:
  bool startsWith(std::string_view prefix) const { return s_.substr(i_).starts_with(prefix); }

  std::string stringLiteral(std::vector<std::string>& problems) {
    std::string text;
    ++i_;
    while (i_ < s_.size() && s_[i_] != '"' && s_[i_] != '\n') {
      if (s_[i_] != '\\') {
        text += s_[i_++];
        continue;
      }
      ++i_;
      if (i_ >= s_.size()) {
        break;
      }
      const char e = s_[i_++];
      switch (e) {
      case 'n':
        text += '\n';
        break;
      case 't':
        text += '\t';
        break;
      case 'r':
        text += '\r';
        break;
      case 'a':
        text += '\a';
        break;
      case 'b':
        text += '\b';
        break;
      case 'f':
        text += '\f';
        break;
      case 'v':
        text += '\v';
        break;
      case 'x': {
        std::uint32_t value = 0;
        while (i_ < s_.size() && isHex(s_[i_])) {
          const char h = static_cast<char>(std::tolower(static_cast<unsigned char>(s_[i_++])));
          value = value * 16 + static_cast<std::uint32_t>(h <= '9' ? h - '0' : h - 'a' + 10);
        }
        text += static_cast<char>(value & 0xFF);
        break;
      }
      case 'u':
      case 'U': {
        const std::size_t digits = e == 'u' ? 4 : 8;
        const auto hex = std::string(s_.substr(i_, digits));
        i_ += hex.size();
        appendUTF8(text, static_cast<std::uint32_t>(std::stoul(hex, nullptr, 16)));
        break;
      }
      default:
        if (e >= '0' && e <= '7') {
          std::uint32_t value = static_cast<std::uint32_t>(e - '0');
          for (int n = 0; n < 2 && i_ < s_.size() && s_[i_] >= '0' && s_[i_] <= '7'; ++n) {
            value = value * 8 + static_cast<std::uint32_t>(s_[i_++] - '0');
          }
          text += static_cast<char>(value & 0xFF);
        } else {
          text += e; // \" \\ \' \?
        }
      }
    }
    if (i_ >= s_.size() || s_[i_] != '"') {
      problems.push_back("unterminated string literal on line " + std::to_string(line_));
    } else {
      ++i_;
    }
    return text;
  }

  void rawStringLiteral() {
    const auto open = s_.find('(', i_);
    if (open == std::string_view::npos) {
      i_ = s_.size();
      return;
    }
    const auto delimiter = std::string(")") + std::string(s_.substr(i_ + 2, open - i_ - 2)) + "\"";
    const auto end = s_.find(delimiter, open);
    const auto stop = end == std::string_view::npos ? s_.size() : end + delimiter.size();
    line_ += static_cast<int>(std::count(s_.begin() + i_, s_.begin() + stop, '\n'));
    i_ = stop;
  }

  void skipCharacterLiteral() {
    ++i_;
    while (i_ < s_.size() && s_[i_] != '\'' && s_[i_] != '\n') {
      i_ += s_[i_] == '\\' ? 2 : 1;
    }
    ++i_;
  }

  std::string_view s_;
  std::size_t i_ = 0;
  int line_ = 1;
};

// Every `constexpr LocalizedText name{"key", "English", "comment"}` (or `= {…}`) in `source`.
// A constexpr LocalizedText in any other shape is a problem: its text would silently be missing
// from the strings file.
void scanSource(std::string_view source, const std::string& name, Scan& scan) {
  std::vector<std::string> lexProblems;
  const auto tokens = Lexer(source).tokens(lexProblems);
  for (const auto& problem : lexProblems) {
    scan.problems.push_back(name + ": " + problem);
  }
  const auto is = [&](std::size_t i, std::string_view text) {
    return i < tokens.size() && tokens[i].kind != Token::Kind::string && tokens[i].text == text;
  };
  for (std::size_t i = 0; i + 2 < tokens.size(); ++i) {
    if (!is(i, "constexpr") || !is(i + 1, "LocalizedText") ||
        tokens[i + 2].kind != Token::Kind::identifier) {
      continue;
    }
    const auto location = name + ":" + std::to_string(tokens[i].line);
    auto j = i + 3;
    if (is(j, "=")) {
      ++j;
    }
    std::vector<std::string> fields;
    bool wellFormed = is(j, "{");
    ++j;
    while (wellFormed && fields.size() < 3) {
      if (j >= tokens.size() || tokens[j].kind != Token::Kind::string) {
        wellFormed = false;
        break;
      }
      std::string field;
      while (j < tokens.size() && tokens[j].kind == Token::Kind::string) {
        field += tokens[j++].text; // adjacent literals concatenate
      }
      fields.push_back(std::move(field));
      if (fields.size() < 3) {
        wellFormed = is(j++, ",");
      }
    }
    if (is(j, ",")) {
      ++j;
    }
    if (!wellFormed || !is(j, "}")) {
      scan.problems.push_back(location + ": " + tokens[i + 2].text +
                              " is not three string literals; the check cannot read it");
      continue;
    }
    scan.declarations.push_back({fields[0], fields[1], fields[2], location});
    i = j;
  }
}

Scan scanSourceTree(const fs::path& root) {
  Scan scan;
  std::vector<fs::path> files;
  for (const auto& item : fs::recursive_directory_iterator(root)) {
    const auto extension = item.path().extension();
    if (item.is_regular_file() &&
        (extension == ".hpp" || extension == ".cpp" || extension == ".mm" || extension == ".h")) {
      files.push_back(item.path());
    }
  }
  std::sort(files.begin(), files.end());
  for (const auto& file : files) {
    std::ifstream in(file, std::ios::binary);
    std::stringstream contents;
    contents << in.rdbuf();
    scanSource(contents.str(), fs::relative(file, root.parent_path()).string(), scan);
  }
  return scan;
}

// The entries by key; conflicting duplicates are problems.
std::map<std::string, Entry> entriesByKey(const Scan& scan, std::vector<std::string>& problems) {
  std::map<std::string, Entry> entries;
  std::map<std::string, std::string> firstLocation;
  for (const auto& d : scan.declarations) {
    if (d.key.empty() || d.comment.empty()) {
      problems.push_back(d.location + ": every text needs a key and a comment for translators");
    }
    const auto isSpace = [](char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; };
    if (!d.comment.empty() && (d.comment.find("*/") != std::string::npos ||
                               isSpace(d.comment.front()) || isSpace(d.comment.back()))) {
      problems.push_back(d.location +
                         ": the comment cannot be written to a .strings comment as it is");
    }
    const auto [found, inserted] = entries.try_emplace(d.key, Entry{d.english, d.comment});
    if (inserted) {
      firstLocation[d.key] = d.location;
    } else if (found->second.english != d.english || found->second.comment != d.comment) {
      problems.push_back("\"" + d.key + "\" is declared with different texts at " +
                         firstLocation[d.key] + " and " + d.location);
    }
  }
  return entries;
}

std::string escapeStringsValue(std::string_view text) {
  std::string out;
  for (const char c : text) {
    switch (c) {
    case '"':
      out += "\\\"";
      break;
    case '\\':
      out += "\\\\";
      break;
    case '\n':
      out += "\\n";
      break;
    case '\r':
      out += "\\r";
      break;
    case '\t':
      out += "\\t";
      break;
    default:
      out += c;
    }
  }
  return out;
}

constexpr std::string_view kHeader =
    "/* Generated from the LocalizedText declarations under src/ by scripts/update-strings\n"
    "   (make strings). Do not edit: change the declaration and regenerate. */\n\n";

std::string renderStringsFile(const std::map<std::string, Entry>& entries) {
  std::string out(kHeader);
  for (const auto& [key, entry] : entries) {
    out += "/* " + entry.comment + " */\n";
    out +=
        "\"" + escapeStringsValue(key) + "\" = \"" + escapeStringsValue(entry.english) + "\";\n\n";
  }
  return out;
}

// Reads the .strings format: `/* comment */` then `"key" = "value";`, the comment nearest before
// an entry belonging to it.
std::map<std::string, Entry> parseStringsFile(std::string_view s,
                                              std::vector<std::string>& problems) {
  std::map<std::string, Entry> entries;
  std::size_t i = 0;
  std::string pendingComment;
  const auto skipSpace = [&] {
    while (i < s.size() && std::isspace(static_cast<unsigned char>(s[i]))) {
      ++i;
    }
  };
  const auto readQuoted = [&]() -> std::optional<std::string> {
    skipSpace();
    if (i >= s.size() || s[i] != '"') {
      return std::nullopt;
    }
    std::string text;
    for (++i; i < s.size() && s[i] != '"'; ++i) {
      if (s[i] != '\\' || i + 1 >= s.size()) {
        text += s[i];
        continue;
      }
      const char e = s[++i];
      if (e == 'n') {
        text += '\n';
      } else if (e == 't') {
        text += '\t';
      } else if (e == 'r') {
        text += '\r';
      } else if (e == 'U' && i + 4 < s.size()) {
        appendUTF8(text, static_cast<std::uint32_t>(
                             std::stoul(std::string(s.substr(i + 1, 4)), nullptr, 16)));
        i += 4;
      } else {
        text += e;
      }
    }
    if (i >= s.size()) {
      return std::nullopt;
    }
    ++i;
    return text;
  };
  const auto expect = [&](char c) {
    skipSpace();
    if (i < s.size() && s[i] == c) {
      ++i;
      return true;
    }
    return false;
  };
  for (skipSpace(); i < s.size(); skipSpace()) {
    if (s.substr(i).starts_with("/*")) {
      const auto end = s.find("*/", i + 2);
      if (end == std::string_view::npos) {
        problems.push_back("Localizable.strings: unterminated comment");
        break;
      }
      pendingComment = std::string(s.substr(i + 2, end - i - 2));
      const auto first = pendingComment.find_first_not_of(" \n\t");
      const auto last = pendingComment.find_last_not_of(" \n\t");
      pendingComment =
          first == std::string::npos ? "" : pendingComment.substr(first, last - first + 1);
      i = end + 2;
      continue;
    }
    const auto key = readQuoted();
    const bool equals = key && expect('=');
    const auto value = equals ? readQuoted() : std::nullopt;
    if (!value || !expect(';')) {
      problems.push_back("Localizable.strings: malformed entry near offset " + std::to_string(i));
      break;
    }
    if (!entries.try_emplace(*key, Entry{*value, pendingComment}).second) {
      problems.push_back("Localizable.strings: \"" + *key + "\" appears twice");
    }
    pendingComment.clear();
  }
  return entries;
}

std::vector<std::string> differences(const std::map<std::string, Entry>& declared,
                                     const std::map<std::string, Entry>& file) {
  std::vector<std::string> out;
  for (const auto& [key, entry] : declared) {
    const auto found = file.find(key);
    if (found == file.end()) {
      out.push_back("\"" + key + "\" is declared but missing from Localizable.strings");
      continue;
    }
    if (found->second.english != entry.english) {
      out.push_back("\"" + key + "\": the sources say \"" + entry.english + "\", the file says \"" +
                    found->second.english + "\"");
    }
    if (found->second.comment != entry.comment) {
      out.push_back("\"" + key + "\": the comment differs (sources: \"" + entry.comment +
                    "\", file: \"" + found->second.comment + "\")");
    }
  }
  for (const auto& [key, entry] : file) {
    if (!declared.contains(key)) {
      out.push_back("\"" + key + "\" is in Localizable.strings but declared nowhere");
    }
  }
  return out;
}

std::string joined(const std::vector<std::string>& lines) {
  std::string out;
  for (const auto& line : lines) {
    out += "  " + line + "\n";
  }
  return out;
}

TEST(LocalizableStringsTest, ReadsDeclarationsTheWayTheCompilerDoes) {
  Scan scan;
  scanSource(R"cpp(
    // inline constexpr LocalizedText kCommentedOut{"commented", "x", "y"};
    constexpr auto kSeparated = 1'000'000; constexpr char kQuote = '"';
    inline constexpr LocalizedText kSplit{
        "demo.split", "Say \"hi\"\\n"  "twice.\n"
        "\x41\101\u00e9", "Two "
        /* between */ "parts."};
    static constexpr LocalizedText kAssigned = {"demo.assigned", "A", "B",};
    inline constexpr LocalizedText kBroken{kSplit.key, "x", "y"};
  )cpp",
             "demo.hpp", scan);
  ASSERT_EQ(scan.declarations.size(), 2U);
  EXPECT_EQ(scan.declarations[0].key, "demo.split");
  EXPECT_EQ(scan.declarations[0].english, "Say \"hi\"\\ntwice.\nAA\xC3\xA9");
  EXPECT_EQ(scan.declarations[0].comment, "Two parts.");
  EXPECT_EQ(scan.declarations[0].location, "demo.hpp:4");
  EXPECT_EQ(scan.declarations[1].key, "demo.assigned");
  ASSERT_EQ(scan.problems.size(), 1U);
  EXPECT_NE(scan.problems[0].find("kBroken"), std::string::npos);

  std::vector<std::string> problems;
  const auto declared = entriesByKey(scan, problems);
  EXPECT_TRUE(problems.empty());
  const auto reparsed = parseStringsFile(renderStringsFile(declared), problems);
  EXPECT_TRUE(problems.empty()) << joined(problems);
  EXPECT_TRUE(differences(declared, reparsed).empty()) << joined(differences(declared, reparsed));

  scan.declarations.push_back({"demo.assigned", "A", "Another comment", "other.hpp:1"});
  entriesByKey(scan, problems);
  EXPECT_EQ(problems.size(), 1U);
}

TEST(LocalizableStringsTest, FileMatchesTheDeclaredTexts) {
  const fs::path root(QUENBY_SOURCE_DIR);
  const auto stringsPath = root / "resources" / "en.lproj" / "Localizable.strings";
  const auto scan = scanSourceTree(root / "src");
  ASSERT_FALSE(scan.declarations.empty()) << "no LocalizedText declaration found under src/";

  std::vector<std::string> problems = scan.problems;
  const auto declared = entriesByKey(scan, problems);
  ASSERT_TRUE(problems.empty()) << joined(problems);
  const auto expected = renderStringsFile(declared);

  if (const char* update = std::getenv("QUENBY_UPDATE_STRINGS");
      update && std::string(update) == "1") {
    fs::create_directories(stringsPath.parent_path());
    std::ofstream(stringsPath, std::ios::binary | std::ios::trunc) << expected;
    std::cout << "Wrote " << declared.size() << " entries to " << stringsPath.string() << "\n";
    return;
  }

  std::ifstream in(stringsPath, std::ios::binary);
  ASSERT_TRUE(in) << stringsPath.string() << " is missing: run `make strings`";
  std::stringstream contents;
  contents << in.rdbuf();
  const auto file = parseStringsFile(contents.str(), problems);
  auto diff = differences(declared, file);
  problems.insert(problems.end(), diff.begin(), diff.end());
  EXPECT_TRUE(problems.empty()) << "Localizable.strings is out of step with the sources "
                                   "(run `make strings`):\n"
                                << joined(problems);
  if (problems.empty()) {
    EXPECT_EQ(contents.str(), expected) << "Localizable.strings has the right texts but not the "
                                           "generated layout: run `make strings`";
  }
}

} // namespace
} // namespace quenby
