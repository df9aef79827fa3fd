#include "app/ShortcutDiagnostics.hpp"

#include <gtest/gtest.h>

namespace quenby {
namespace {

TEST(ShortcutDiagnosticsTest, NotifiesOnlyWhenSomethingChanges) {
  ShortcutDiagnostics diagnostics;
  int changes = 0;
  const auto token = diagnostics.observeChanges([&] { ++changes; });
  EXPECT_FALSE(diagnostics.hasIssue());

  diagnostics.setAutomaticWarning("Option-1 is taken by another app.");
  diagnostics.setAutomaticWarning("Option-1 is taken by another app.");
  EXPECT_EQ(changes, 1);
  EXPECT_TRUE(diagnostics.hasIssue());

  diagnostics.recordManualConflict({"The shortcut did not reach Quenby."});
  diagnostics.setAutomaticWarning(std::nullopt);
  EXPECT_EQ(changes, 3);
  EXPECT_TRUE(diagnostics.hasIssue()) << "the manual conflict still stands";

  diagnostics.recordManualConflict({"The shortcut did not reach Quenby."});
  diagnostics.clearManualConflict();
  diagnostics.clearManualConflict();
  EXPECT_EQ(changes, 4);
  EXPECT_FALSE(diagnostics.hasIssue());

  diagnostics.setTestedModifier(ActivationModifierPreference::control);
  diagnostics.setTestedModifier(ActivationModifierPreference::control);
  diagnostics.setRuntimeAvailable(true);
  EXPECT_EQ(changes, 5);
  EXPECT_EQ(diagnostics.advanceTestGeneration(), 1);
  EXPECT_EQ(diagnostics.advanceTestGeneration(), 2);
  EXPECT_EQ(changes, 7);
  EXPECT_FALSE(diagnostics.hasIssue());
}

} // namespace
} // namespace quenby
