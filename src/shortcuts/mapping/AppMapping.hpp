#pragma once

#include "base/FileURL.hpp"
#include "shortcuts/mapping/ApplicationResolution.hpp"
#include "shortcuts/mapping/ApplicationResolutionProblem.hpp"
#include "shortcuts/mapping/MappingSource.hpp"

#include <optional>
#include <string>

namespace quenby {

/// One shortcut's target: an application named by bundle identifier and last-known location,
/// where it was found, and which key leads to it.
struct AppMapping {
  std::string displayName;
  std::string bundleIdentifier;
  FileURL lastKnownURL;
  ApplicationResolution resolution;
  MappingSource source;

  /// "dock:3" or "letter:S": a Dock mapping and a letter mapping to one application differ.
  [[nodiscard]] std::string id() const { return source.id(); }
  /// The bundle to open; absent unless the resolution found exactly one copy.
  [[nodiscard]] std::optional<FileURL> launchURL() const { return resolution.resolvedURL(); }
  /// Why there is no launch URL; absent when there is one.
  [[nodiscard]] std::optional<ApplicationResolutionProblem> problem() const;

  friend bool operator==(const AppMapping&, const AppMapping&) = default;
};

} // namespace quenby

template <> struct std::hash<quenby::AppMapping> {
  std::size_t operator()(const quenby::AppMapping& mapping) const noexcept;
};
