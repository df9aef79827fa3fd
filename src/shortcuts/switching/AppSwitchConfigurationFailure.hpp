#pragma once

#include "base/FileURL.hpp"
#include "base/Localizer.hpp"
#include "shortcuts/mapping/AppMapping.hpp"
#include "shortcuts/mapping/ApplicationResolutionProblem.hpp"

#include <cstddef>
#include <optional>
#include <string>
#include <variant>

namespace quenby {

inline constexpr LocalizedText kSwitchInvalidURLText{
    "diagnostic.switching.invalid-url",
    "The resolved application URL is invalid. Select the application again.",
    "Shown when a mapping resolved to something that is not an application bundle."};

/// Why a mapping cannot be switched to before anything is opened: it did not resolve to exactly
/// one application, or it resolved to something that cannot be an application bundle.
class AppSwitchConfigurationFailure {
public:
  [[nodiscard]] static AppSwitchConfigurationFailure
  unresolved(ApplicationResolutionProblem problem) {
    return AppSwitchConfigurationFailure(std::move(problem));
  }
  [[nodiscard]] static AppSwitchConfigurationFailure invalidResolvedURL(FileURL url) {
    return AppSwitchConfigurationFailure(std::move(url));
  }

  /// The resolution problem; null for an invalid URL.
  [[nodiscard]] const ApplicationResolutionProblem* problem() const {
    return std::get_if<ApplicationResolutionProblem>(&state_);
  }
  /// The rejected URL; null for an unresolved mapping.
  [[nodiscard]] const FileURL* invalidURL() const { return std::get_if<FileURL>(&state_); }
  /// Localised: the problem's own message, or the invalid-URL text.
  [[nodiscard]] std::string description(const Localizer& localizer) const;

  friend bool operator==(const AppSwitchConfigurationFailure&,
                         const AppSwitchConfigurationFailure&) = default;

private:
  explicit AppSwitchConfigurationFailure(std::variant<ApplicationResolutionProblem, FileURL> state)
      : state_(std::move(state)) {}

  std::variant<ApplicationResolutionProblem, FileURL> state_;
};

/// The check made before a mapping is switched to, with no side effects: none when the mapping
/// resolved to a file URL whose extension is "app" in any case.
[[nodiscard]] std::optional<AppSwitchConfigurationFailure>
switchConfigurationFailure(const AppMapping& mapping);

} // namespace quenby

template <> struct std::hash<quenby::AppSwitchConfigurationFailure> {
  std::size_t operator()(const quenby::AppSwitchConfigurationFailure& failure) const noexcept;
};
