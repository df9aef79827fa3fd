#pragma once

#include "base/FileURL.hpp"
#include "base/Localizer.hpp"
#include "shortcuts/mapping/AppMapping.hpp"
#include "shortcuts/mapping/ApplicationResolutionProblem.hpp"

#include <optional>
#include <string>

namespace quenby {

inline constexpr LocalizedText kSwitchInvalidURLText{
    "diagnostic.switching.invalid-url",
    "The resolved application URL is invalid. Select the application again.",
    "Shown when a mapping points at something that is not an application bundle."};

/// Why a mapping cannot be switched to until the user picks its application again: it did not
/// resolve to one copy, or it resolved to something that is not an application bundle.
class AppSwitchConfigurationFailure {
public:
  enum class Kind { unresolved, invalidResolvedURL };

  [[nodiscard]] static AppSwitchConfigurationFailure
  unresolved(ApplicationResolutionProblem problem) {
    return AppSwitchConfigurationFailure(std::move(problem));
  }
  [[nodiscard]] static AppSwitchConfigurationFailure invalidResolvedURL(FileURL url) {
    return AppSwitchConfigurationFailure(std::move(url));
  }

  [[nodiscard]] Kind kind() const { return problem_ ? Kind::unresolved : Kind::invalidResolvedURL; }
  /// Present exactly for `unresolved`.
  [[nodiscard]] const std::optional<ApplicationResolutionProblem>& problem() const {
    return problem_;
  }
  /// Present exactly for `invalidResolvedURL`.
  [[nodiscard]] const std::optional<FileURL>& invalidURL() const { return invalidURL_; }
  /// The explanation shown to the user: the resolution problem's own message, or the
  /// invalid-URL text.
  [[nodiscard]] std::string description(const Localizer& localizer) const;

  friend bool operator==(const AppSwitchConfigurationFailure&,
                         const AppSwitchConfigurationFailure&) = default;

private:
  explicit AppSwitchConfigurationFailure(ApplicationResolutionProblem problem)
      : problem_(std::move(problem)) {}
  explicit AppSwitchConfigurationFailure(FileURL url) : invalidURL_(std::move(url)) {}

  std::optional<ApplicationResolutionProblem> problem_;
  std::optional<FileURL> invalidURL_;
};

/// Why `mapping` cannot be switched to as it stands, or absent when it can: it must have
/// resolved, to a file URL whose extension is "app" in any case. No side effects, so shortcut
/// handlers and views may call it as often as they like.
[[nodiscard]] std::optional<AppSwitchConfigurationFailure>
switchConfigurationFailure(const AppMapping& mapping);

} // namespace quenby

template <> struct std::hash<quenby::AppSwitchConfigurationFailure> {
  std::size_t operator()(const quenby::AppSwitchConfigurationFailure& failure) const noexcept;
};
