#include "simulation/SimulatedPlatform.hpp"

#include "shortcuts/dock/SystemDockPreferenceReader.hpp"
#include "shortcuts/running/IcnsApplicationIconLoader.hpp"
#include "shortcuts/running/MainThreadApplicationIconWorkScheduler.hpp"
#include "simulation/RecordingKeyValueStore.hpp"
#include "simulation/SimulatedCharacterTranslator.hpp"
#include "simulation/SimulatedDigitInfoPresenter.hpp"
#include "simulation/SimulatedFailurePanelFactory.hpp"
#include "simulation/SimulatedHUDEnableExplainer.hpp"
#include "simulation/SimulatedKeyboardAccessProbe.hpp"
#include "simulation/SimulatedLogger.hpp"
#include "simulation/SimulatedMappingEditor.hpp"
#include "simulation/SimulatedModifierKeyStateReader.hpp"
#include "simulation/SimulatedSettingsWindow.hpp"
#include "simulation/SimulatedShortcutAnimationPanel.hpp"
#include "simulation/SimulatedShortcutAnimationSystem.hpp"
#include "simulation/SimulatedWindowPlacementSnapshotProvider.hpp"
#include "simulation/SimulatedWorkspaceAdapters.hpp"
#include "ui/editor/InstalledApplicationCatalog.hpp"

namespace quenby {
namespace {

BasePlatform simulatedBase(SimulatedWorld& world, const ScenarioEventRecorder& recorder) {
  return {
      .userDefaults = std::make_shared<RecordingKeyValueStore>(
          world.defaults(), recorder,
          [&world](std::string text) { return world.withoutDiskPrefix(std::move(text)); }),
      .scheduler = world.scheduler(),
      .clock = world.scheduler(),
      .wallClock = world.wallClock(),
      .localizer = std::make_shared<EnglishLocalizer>(),
      .logger = std::make_shared<SimulatedLogger>(recorder),
      .fileSystem = world.fileSystem(),
      .propertyListDecoder = world.decoder(),
      .distributedNotificationCenter = world.notificationCenter(),
  };
}

ShortcutsPlatform simulatedShortcuts(SimulatedWorld& world, const ScenarioEventRecorder& recorder,
                                     const std::shared_ptr<SimulatedHotKeyBackend>& hotKeys) {
  SimulatedDock& dock = world.dock();
  auto workspace = std::make_shared<SimulatedWorkspaceAdapters>(world, recorder);
  return {
      .dockPreferenceReader = std::make_shared<SystemDockPreferenceReader>(
          [&dock] { return dock.synchronize(); }, [&dock] { return dock.copyPersistentApps(); }),
      .applicationLocator = world.launchServices(),
      // Spotlight and the workspace stay silent: Launch Services' notifications and the poll
      // are what the simulated Mac offers the catalog.
      .spotlightQuery = std::make_shared<InertApplicationSpotlightQuery>(),
      .workspaceNotifications = std::make_shared<InertApplicationWorkspaceNotificationObserver>(),
      .applicationOpener = workspace,
      .applicationPresenceChecker = workspace,
      .frontmostApplication = workspace,
      .frontmostHidableApplication =
          [workspace] { return workspace->frontmostHidableApplication(); },
      .hotKeyBackend = hotKeys,
      .symbolicHotKeys = hotKeys,
      .runningApplications = workspace,
      .iconLoader =
          std::make_shared<IcnsApplicationIconLoader>(world.fileSystem(), world.decoder()),
      .iconWorkScheduler =
          std::make_shared<MainThreadApplicationIconWorkScheduler>(*world.scheduler()),
  };
}

HUDPlatform simulatedHud(SimulatedWorld& world, const ScenarioEventRecorder& recorder,
                         SimulatedKeyboardEventTap& eventTap, SimulatedMouseMonitors& mouse,
                         std::shared_ptr<SimulatedHUDPanelFactory> panels) {
  SimulatedKeyboard& keyboard = world.keyboard();
  return {
      .eventTap = eventTap.dependencies(),
      .permission = {
          .accessibilityTrusted = [&keyboard] { return keyboard.accessibilityGranted; },
          .inputMonitoringGranted = [&keyboard] { return keyboard.inputMonitoringGranted; },
          .requestAccessibility =
              [&recorder] {
                recorder.emit("prompt", {{"permission", "accessibility"}});
              },
          .requestInputMonitoring =
              [&recorder] {
                recorder.emit("prompt", {{"permission", "inputMonitoring"}});
              },
          .openSettingsURL =
              [&recorder](const std::string& url) {
                recorder.emit("open-url", {{"url", url}});
              },
      },
      .keyStateReader = std::make_shared<SimulatedModifierKeyStateReader>(keyboard),
      .panelFactory = std::move(panels),
      .outsideClicks = mouse.dependencies(),
      .characterTranslator = std::make_shared<SimulatedCharacterTranslator>(keyboard),
      .digitInfo = std::make_shared<SimulatedDigitInfoPresenter>(recorder),
      .keyboardAccess = std::make_shared<SimulatedKeyboardAccessProbe>(keyboard),
  };
}

} // namespace

SimulatedProcess makeSimulatedProcess(SimulatedWorld& world,
                                      const ScenarioEventRecorder& recorder) {
  auto hotKeys = std::make_shared<SimulatedHotKeyBackend>(world, recorder);
  auto eventTap = std::make_shared<SimulatedKeyboardEventTap>(world.keyboard(), recorder);
  auto mouse = std::make_shared<SimulatedMouseMonitors>();
  auto panels = std::make_shared<SimulatedHUDPanelFactory>(recorder, *world.scheduler());
  auto animationSystem = std::make_shared<SimulatedShortcutAnimationSystem>(world);
  auto terminator = std::make_shared<SimulatedApplicationTerminator>();
  return {
      .services =
          {
              .base = simulatedBase(world, recorder),
              .app = {.activationPolicy = std::make_shared<InertApplicationActivationPolicy>(),
                      .failurePanelFactory =
                          std::make_shared<SimulatedFailurePanelFactory>(recorder),
                      .hudEnableExplainer = std::make_shared<SimulatedHUDEnableExplainer>(
                          world.alertAnswers(), recorder),
                      .terminator = terminator},
              .shortcuts = simulatedShortcuts(world, recorder, hotKeys),
              .data = {.windowPlacementSnapshotProvider =
                           std::make_shared<SimulatedWindowPlacementSnapshotProvider>(world),
                       .calendar = std::make_shared<FixedOffsetUsageCalendar>()},
              .hud = simulatedHud(world, recorder, *eventTap, *mouse, panels),
              .ui = {.settingsWindows = std::make_shared<SimulatedSettingsWindowFactory>(recorder),
                     .mappingEditorWindows =
                         std::make_shared<SimulatedMappingEditorFactory>(recorder),
                     .mappingEditorFilePanels = std::make_shared<InertMappingEditorFilePanels>(),
                     .applicationFolders = InstalledApplicationCatalog::standardFolders(
                         FileURL::fromPath(world.diskRoot()), FileURL::fromPath("/Users/user")),
                     .launchAtLogin = std::make_shared<InertLaunchAtLoginService>(),
                     .shortcutAnimationPanels =
                         std::make_shared<SimulatedShortcutAnimationPanelFactory>(recorder),
                     .shortcutAnimationScreens = animationSystem,
                     .shortcutAnimationMotion = animationSystem},
          },
      .hotKeys = hotKeys,
      .eventTap = eventTap,
      .hudPanels = panels,
      .mouse = mouse,
      .terminator = terminator,
  };
}

} // namespace quenby
