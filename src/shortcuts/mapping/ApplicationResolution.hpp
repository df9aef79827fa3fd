#pragma once

#include "base/FileURL.hpp"

#include <optional>
#include <vector>

namespace quenby {

/// Where a mapped application was found on disk: exactly one copy, several indistinguishable
/// copies, or none.
class ApplicationResolution {
public:
  enum class Kind { resolved, notFound, ambiguous };

  [[nodiscard]] static ApplicationResolution resolved(FileURL url) {
    return ApplicationResolution(Kind::resolved, {std::move(url)});
  }
  [[nodiscard]] static ApplicationResolution ambiguous(std::vector<FileURL> candidatePaths) {
    return ApplicationResolution(Kind::ambiguous, std::move(candidatePaths));
  }
  [[nodiscard]] static ApplicationResolution notFound() {
    return ApplicationResolution(Kind::notFound, {});
  }

  [[nodiscard]] Kind kind() const { return kind_; }
  [[nodiscard]] bool isResolved() const { return kind_ == Kind::resolved; }
  /// The bundle's URL when resolved.
  [[nodiscard]] std::optional<FileURL> resolvedURL() const;
  /// The bundle's URL when resolved, without a copy: for paths that must not allocate.
  [[nodiscard]] const FileURL* resolvedURLIfAny() const {
    return kind_ == Kind::resolved ? &urls_.front() : nullptr;
  }
  /// Every candidate when ambiguous; empty otherwise.
  [[nodiscard]] const std::vector<FileURL>& candidatePaths() const;
  /// "resolved", "ambiguous" or "notFound".
  [[nodiscard]] const char* name() const;

  friend bool operator==(const ApplicationResolution&, const ApplicationResolution&) = default;

private:
  ApplicationResolution(Kind kind, std::vector<FileURL> urls)
      : kind_(kind), urls_(std::move(urls)) {}

  Kind kind_;
  std::vector<FileURL> urls_;
};

} // namespace quenby

template <> struct std::hash<quenby::ApplicationResolution> {
  std::size_t operator()(const quenby::ApplicationResolution& resolution) const noexcept;
};
