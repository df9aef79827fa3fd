#include "base/FileURL.hpp"

#include <algorithm>
#include <cctype>
#include <vector>

namespace quenby {
namespace {

std::string standardize(std::string_view path) {
  std::vector<std::string_view> components;
  std::size_t start = 0;
  while (start <= path.size()) {
    std::size_t end = path.find('/', start);
    if (end == std::string_view::npos) {
      end = path.size();
    }
    const std::string_view component = path.substr(start, end - start);
    if (component == "..") {
      if (!components.empty()) {
        components.pop_back();
      }
    } else if (!component.empty() && component != ".") {
      components.push_back(component);
    }
    start = end + 1;
  }
  if (components.empty()) {
    return "/";
  }
  std::string result;
  result.reserve(path.size() + 1);
  for (const auto component : components) {
    result.push_back('/');
    result.append(component);
  }
  return result;
}

int hexValue(char c) {
  if (c >= '0' && c <= '9') {
    return c - '0';
  }
  if (c >= 'a' && c <= 'f') {
    return c - 'a' + 10;
  }
  if (c >= 'A' && c <= 'F') {
    return c - 'A' + 10;
  }
  return -1;
}

std::optional<std::string> percentDecode(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '%') {
      out.push_back(text[i]);
      continue;
    }
    if (i + 2 >= text.size()) {
      return std::nullopt;
    }
    const int high = hexValue(text[i + 1]);
    const int low = hexValue(text[i + 2]);
    if (high < 0 || low < 0) {
      return std::nullopt;
    }
    out.push_back(static_cast<char>(high * 16 + low));
    i += 2;
  }
  // A decoded NUL would silently cut the path short in every system call.
  if (out.find('\0') != std::string::npos) {
    return std::nullopt;
  }
  return out;
}

bool isUnescapedInPath(unsigned char c) {
  return std::isalnum(c) != 0 ||
         std::string_view("-._~!$&'()*+,;=:@/").find(static_cast<char>(c)) !=
             std::string_view::npos;
}

char asciiLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool equalsIgnoringCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return std::tolower(static_cast<unsigned char>(x)) ==
                  std::tolower(static_cast<unsigned char>(y));
         });
}

} // namespace

FileURL FileURL::fromPath(std::string_view path) { return FileURL(standardize(path)); }

std::optional<FileURL> FileURL::fromString(std::string_view text) {
  constexpr std::string_view scheme = "file:";
  if (text.size() < scheme.size() || !equalsIgnoringCase(text.substr(0, scheme.size()), scheme)) {
    return std::nullopt;
  }
  std::string_view rest = text.substr(scheme.size());
  rest = rest.substr(0, std::min(rest.find('?'), rest.find('#')));
  if (rest.substr(0, 2) == "//") {
    rest.remove_prefix(2);
    const std::size_t slash = rest.find('/');
    const std::string_view host = rest.substr(0, slash);
    if (!host.empty() && !equalsIgnoringCase(host, "localhost")) {
      return std::nullopt;
    }
    rest = slash == std::string_view::npos ? std::string_view("/") : rest.substr(slash);
  }
  if (rest.empty() || rest.front() != '/') {
    return std::nullopt;
  }
  auto decoded = percentDecode(rest);
  if (!decoded) {
    return std::nullopt;
  }
  return fromPath(*decoded);
}

std::string FileURL::absoluteString() const {
  static constexpr char digits[] = "0123456789ABCDEF";
  std::string out = "file://";
  for (const char c : path_) {
    const auto byte = static_cast<unsigned char>(c);
    if (isUnescapedInPath(byte)) {
      out.push_back(c);
    } else {
      out.push_back('%');
      out.push_back(digits[byte >> 4]);
      out.push_back(digits[byte & 0x0F]);
    }
  }
  return out;
}

std::string FileURL::lastPathComponent() const {
  if (path_ == "/") {
    return "/";
  }
  return path_.substr(path_.rfind('/') + 1);
}

std::string FileURL::pathExtension() const {
  const std::string name = lastPathComponent();
  const std::size_t dot = name.rfind('.');
  if (dot == std::string::npos || dot == 0) {
    return {};
  }
  return name.substr(dot + 1);
}

bool FileURL::hasPathExtension(std::string_view extension) const {
  const std::string_view path = path_;
  if (!extension.empty()) {
    // A digit shortcut checks its target with this on every press: look at the end of the path
    // only, and compare ASCII letters without the locale. An extension holding a dot or a slash
    // can never be the text after the last dot of the last component.
    if (path.size() < extension.size() + 2) {
      return false;
    }
    const std::size_t dot = path.size() - extension.size() - 1;
    if (path[dot] != '.' || path[dot - 1] == '/') {
      return false;
    }
    for (std::size_t i = 0; i < extension.size(); ++i) {
      const char wanted = extension[i];
      if (wanted == '.' || wanted == '/' || asciiLower(wanted) != asciiLower(path[dot + 1 + i])) {
        return false;
      }
    }
    return true;
  }
  const std::string_view name = path.substr(path.rfind('/') + 1);
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos || dot == 0) {
    return extension.empty();
  }
  return equalsIgnoringCase(name.substr(dot + 1), extension);
}

std::string FileURL::lastPathComponentWithoutExtension() const {
  std::string name = lastPathComponent();
  const std::size_t dot = name.rfind('.');
  if (dot != std::string::npos && dot != 0) {
    name.resize(dot);
  }
  return name;
}

FileURL FileURL::appending(std::string_view relativePath) const {
  return fromPath(path_ + "/" + std::string(relativePath));
}

FileURL FileURL::deletingLastPathComponent() const { return appending(".."); }

bool FileURL::isInside(const FileURL& directory) const {
  if (directory.path_ == "/") {
    return path_ != "/";
  }
  return path_.size() > directory.path_.size() && path_.starts_with(directory.path_) &&
         path_[directory.path_.size()] == '/';
}

} // namespace quenby
