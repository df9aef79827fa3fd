#include "shortcuts/switching/AppSwitchConfigurationFailure.hpp"

#include <gtest/gtest.h>

namespace quenby {
namespace {

AppMapping mappingResolvedTo(ApplicationResolution resolution) {
  return {.displayName = "Tool",
          .bundleIdentifier = "com.example.tool",
          .lastKnownURL = FileURL::fromPath("/Applications/Tool.app"),
          .resolution = std::move(resolution),
          .source = MappingSource::dock(4)};
}

std::optional<AppSwitchConfigurationFailure> precheck(const std::string& path) {
  return switchConfigurationFailure(
      mappingResolvedTo(ApplicationResolution::resolved(FileURL::fromPath(path))));
}

TEST(SwitchPrecheck, AcceptsOnlyApplicationBundles) {
  EXPECT_EQ(precheck("/Applications/Tool.app"), std::nullopt);
  EXPECT_EQ(precheck("/Applications/Tool.APP"), std::nullopt) << "case is ignored";
  EXPECT_EQ(precheck("/Applications/Tool"), AppSwitchConfigurationFailure::invalidResolvedURL(
                                                FileURL::fromPath("/Applications/Tool")));
  EXPECT_TRUE(precheck("/Applications/Tool.app.zip"));
  EXPECT_TRUE(precheck("/")) << "the root has no extension";
  EXPECT_TRUE(precheck("/Applications/.app")) << "a leading dot names no extension";
}

TEST(SwitchPrecheck, ReportsAnUnresolvedMappingsOwnProblem) {
  const std::vector<FileURL> candidates{FileURL::fromPath("/Applications/A.app"),
                                        FileURL::fromPath("/Users/x/Applications/A.app")};
  EXPECT_EQ(switchConfigurationFailure(mappingResolvedTo(ApplicationResolution::notFound())),
            AppSwitchConfigurationFailure::unresolved(ApplicationResolutionProblem::notFound()));
  EXPECT_EQ(
      switchConfigurationFailure(mappingResolvedTo(ApplicationResolution::ambiguous(candidates))),
      AppSwitchConfigurationFailure::unresolved(
          ApplicationResolutionProblem::ambiguous(candidates)));
}

TEST(SwitchConfigurationFailure, EqualityAndHashingSeparateKindsAndPayloads) {
  const auto a = FileURL::fromPath("/Applications/A.app");
  const auto b = FileURL::fromPath("/Applications/B.app");
  const std::vector<AppSwitchConfigurationFailure> distinct{
      AppSwitchConfigurationFailure::unresolved(ApplicationResolutionProblem::notFound()),
      AppSwitchConfigurationFailure::unresolved(ApplicationResolutionProblem::ambiguous({})),
      AppSwitchConfigurationFailure::unresolved(ApplicationResolutionProblem::ambiguous({a, b})),
      AppSwitchConfigurationFailure::unresolved(ApplicationResolutionProblem::ambiguous({b, a})),
      AppSwitchConfigurationFailure::invalidResolvedURL(a),
      AppSwitchConfigurationFailure::invalidResolvedURL(b),
  };
  const std::hash<AppSwitchConfigurationFailure> hash;
  for (std::size_t i = 0; i < distinct.size(); ++i) {
    EXPECT_EQ(distinct[i], distinct[i]);
    EXPECT_EQ(hash(distinct[i]), hash(AppSwitchConfigurationFailure(distinct[i])));
    for (std::size_t j = i + 1; j < distinct.size(); ++j) {
      EXPECT_NE(distinct[i], distinct[j]) << i << " vs " << j;
      EXPECT_NE(hash(distinct[i]), hash(distinct[j])) << i << " vs " << j;
    }
  }
}

} // namespace
} // namespace quenby
