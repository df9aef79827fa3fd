#include "hud/tap/SystemEventTapPermission.hpp"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace quenby {
namespace {

using Kind = EventTapPermissionKind;

struct ScriptedPermissions {
  SystemEventTapPermission::Operations operations() {
    return {.accessibilityTrusted = [this] { return accessibility; },
            .inputMonitoringGranted = [this] { return inputMonitoring; },
            .requestAccessibility = [this] { calls.emplace_back("ask accessibility"); },
            .requestInputMonitoring = [this] { calls.emplace_back("ask input monitoring"); },
            .openSettingsURL = [this](const std::string& url) { calls.push_back(url); }};
  }
  bool accessibility = false;
  bool inputMonitoring = false;
  std::vector<std::string> calls;
};

TEST(SystemEventTapPermissionTest, OpensThePaneOfAMissingPermissionOnly) {
  ScriptedPermissions system;
  SystemEventTapPermission permission(system.operations());
  EXPECT_EQ(permission.status().missingKinds(),
            (std::vector{Kind::accessibility, Kind::inputMonitoring}));

  permission.openSettings(Kind::accessibility);
  permission.openSettings(Kind::inputMonitoring);
  permission.request(Kind::inputMonitoring);
  system.accessibility = true;
  permission.openSettings(Kind::accessibility);
  EXPECT_EQ(permission.status().missingKinds(), std::vector{Kind::inputMonitoring});
  EXPECT_EQ(system.calls,
            (std::vector<std::string>{
                "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility",
                "x-apple.systempreferences:com.apple.preference.security?Privacy_ListenEvent",
                "ask input monitoring"}));
}

} // namespace
} // namespace quenby
