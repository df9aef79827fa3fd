#include "shortcuts/hotkeys/OptionDigitHotKeyRegistrar.hpp"

#include "app/ConfigurationFailurePresenting.hpp"
#include "app/OneTimeConfigurationFailureReporter.hpp"
#include "base/InMemoryKeyValueStore.hpp"
#include "data/AppPreferencesStore.hpp"
#include "shortcuts/hotkeys/OptionDigitHotKeyRegistrationRequest.hpp"
#include "shortcuts/hotkeys/RecordingHotKeyBackend.hpp"
#include "support/RecordingAppSwitchFailureHandler.hpp"

#include <gtest/gtest.h>
#include <memory>

namespace quenby {
namespace {

using Request = OptionDigitHotKeyRegistrationRequest;
using Log = std::vector<std::string>;

AppMapping dockMapping(int position, std::string bundleIdentifier, std::string path) {
  const auto url = FileURL::fromPath(path);
  return {.displayName = url.lastPathComponentWithoutExtension(),
          .bundleIdentifier = std::move(bundleIdentifier),
          .lastKnownURL = url,
          .resolution = ApplicationResolution::resolved(url),
          .source = MappingSource::dock(position)};
}

struct RecordingSubmitter final : AppSwitchCommandSubmitting {
  void submit(const AppMapping& mapping) override { submitted.push_back(mapping); }
  std::vector<AppMapping> submitted;
};

struct RecordingPresenter final : ConfigurationFailurePresenting {
  void present(const ConfigurationFailure& failure) override { presented.push_back(failure); }
  std::vector<ConfigurationFailure> presented;
};

struct Fixture {
  Fixture() {
    snapshot.numberEntries.set(1, NumberMappingEntry::mapped(dockMapping(
                                      1, "com.example.Mail", "/Applications/Mail.app")));
  }

  std::unique_ptr<OptionDigitHotKeyRegistrar> makeRegistrar() {
    return std::make_unique<OptionDigitHotKeyRegistrar>(OptionDigitHotKeyRegistrar::Collaborators{
        .backend = backend,
        .mappings = [this]() -> const KeyboardMappingSnapshot& { return snapshot; },
        .switchCommands = submitter,
        .failureHandler = failureHandler,
        .configurationReporter = reporter,
        .preferences = preferences,
        .frontmostApplications = frontmost,
        .appHider = hider,
        .animation = animation,
        .localizer = localizer,
        .testMonitor = &testMonitor});
  }

  RecordingHotKeyBackend backend;
  KeyboardMappingSnapshot snapshot;
  RecordingSubmitter submitter;
  RecordingAppSwitchFailureHandler failureHandler;
  InMemoryKeyValueStore defaults;
  RecordingPresenter presenter;
  OneTimeConfigurationFailureReporter reporter{defaults, &presenter};
  AppPreferencesStore preferences{defaults, [](const std::string&) {}};
  InertFrontmostApplicationProvider frontmost;
  InertAppHider hider;
  NoOpShortcutAnimationPresenter animation;
  EnglishLocalizer localizer;
  ShortcutTestMonitor testMonitor;
};

Log registrations(const char* flags, int through) {
  Log log;
  for (int digit = 1; digit <= through; ++digit) {
    log.push_back("register " +
                  std::to_string(Request::kDigitKeyCodes[static_cast<std::size_t>(digit - 1)]) +
                  " " + flags + " " + std::to_string(digit));
  }
  return log;
}

Log unregistrations(int from) {
  Log log;
  for (int digit = from; digit >= 1; --digit) {
    log.push_back("unregister " + std::to_string(digit));
  }
  log.push_back("remove");
  return log;
}

Log concat(std::initializer_list<Log> parts) {
  Log all;
  for (const auto& part : parts) {
    all.insert(all.end(), part.begin(), part.end());
  }
  return all;
}

TEST(OptionDigitHotKeyRegistrarTest, RegistersAllNineMainRowDigitsOrNone) {
  Fixture f;
  auto registrar = f.makeRegistrar();
  EXPECT_EQ(registrar->start(ActivationModifierPreference::option), std::nullopt);
  EXPECT_EQ(f.backend.log, concat({{"install"}, registrations("0x800", 9)}));
  EXPECT_EQ(registrar->registeredHotKeyCount(), 9U);

  // Another program owns Control-5: digits 4 to 1 go again, last first, then the handler, and
  // the keys of the earlier modifier were gone before any new one was registered.
  f.backend.failures[{0x1000, 5}] = -9878;
  f.backend.log.clear();
  const auto error = registrar->start(ActivationModifierPreference::control);
  EXPECT_EQ(
      f.backend.log,
      concat({unregistrations(9), {"install"}, registrations("0x1000", 5), unregistrations(4)}));
  ASSERT_TRUE(error.has_value());
  EXPECT_EQ(*error, OptionDigitHotKeyError::registerHotKey(ActivationModifierPreference::control, 5,
                                                           -9878));
  EXPECT_EQ(error->description(f.localizer), "Unable to register Control-5: OSStatus -9878.");
  EXPECT_EQ(registrar->registeredHotKeyCount(), 0U);
  EXPECT_FALSE(registrar->isHandlerInstalled());

  // Nothing is left to undo, so a second clean-up and the teardown call the backend no more.
  f.backend.log.clear();
  registrar->unregisterAll();
  registrar.reset();
  EXPECT_TRUE(f.backend.log.empty());
}

TEST(OptionDigitHotKeyRegistrarTest, AHandlerThatCannotBeInstalledRegistersNothing) {
  Fixture f;
  f.backend.installStatus = -50;
  auto registrar = f.makeRegistrar();
  const auto error = registrar->start(ActivationModifierPreference::option);
  EXPECT_EQ(f.backend.log, Log{"install"});
  ASSERT_TRUE(error.has_value());
  EXPECT_EQ(error->description(f.localizer),
            "Unable to install the digit shortcut handler: OSStatus -50.");
}

TEST(OptionDigitHotKeyRegistrarTest, OnlyOurSignatureAndDigitsOneToNineArePresses) {
  EXPECT_EQ(Request::digitOfPress(Request::kSignature, 7), 7);
  EXPECT_EQ(Request::digitOfPress(Request::kSignature, 0), std::nullopt);
  EXPECT_EQ(Request::digitOfPress(Request::kSignature, 10), std::nullopt);
  EXPECT_EQ(Request::digitOfPress(0x41424344, 3), std::nullopt);
  EXPECT_EQ(Request::kSignature, (std::uint32_t{'Q'} << 24) | (std::uint32_t{'N'} << 16) |
                                     (std::uint32_t{'B'} << 8) | std::uint32_t{'Y'});
}

TEST(OptionDigitHotKeyRegistrarTest, APressAfterTheRegistrarIsGoneDoesNothing) {
  Fixture f;
  auto registrar = f.makeRegistrar();
  ASSERT_EQ(registrar->start(ActivationModifierPreference::option), std::nullopt);
  f.backend.press(1);
  EXPECT_EQ(f.submitter.submitted.size(), 1U);
  registrar.reset();
  f.backend.press(1);
  EXPECT_EQ(f.submitter.submitted.size(), 1U);
}

TEST(OptionDigitHotKeyRegistrarTest, AnUnavailablePositionIsExplainedOncePerCause) {
  Fixture f;
  f.snapshot.numberEntries.set(
      2, NumberMappingEntry::unavailable(NumberMappingProblem::invalidDockEntry(
             "The Dock item at position 2 is not an application.")));
  f.snapshot.numberEntries.set(
      3, NumberMappingEntry::unavailable(
             NumberMappingProblem::preferencesUnavailable("Dock mappings have not loaded yet.")));
  auto registrar = f.makeRegistrar();
  for (int press = 0; press < 2; ++press) {
    for (int digit : {7, 2, 3}) {
      registrar->handleHotKey(digit);
    }
  }
  const std::string tail = " Number shortcuts follow Dock order and cannot be edited in Quenby.";
  const std::vector<ConfigurationFailure> expected{
      {"switch.configuration.dock.7.empty-position", "Dock Shortcut Is Read-Only",
       "Dock position 7 does not contain a pinned application." + tail},
      {"switch.configuration.dock.2.invalid-entry", "Dock Shortcut Is Read-Only",
       "The Dock item at position 2 is not an application." + tail},
      {"switch.configuration.dock.3.preferences-unavailable", "Dock Shortcut Is Read-Only",
       "Dock mappings have not loaded yet." + tail}};
  EXPECT_EQ(f.presenter.presented, expected);
  EXPECT_TRUE(f.submitter.submitted.empty());
}

TEST(OptionDigitHotKeyRegistrarTest, AMappingThatCannotBeOpenedIsHandedToTheFailureHandler) {
  Fixture f;
  auto unresolved = dockMapping(2, "com.example.Gone", "/Applications/Gone.app");
  unresolved.resolution = ApplicationResolution::notFound();
  f.snapshot.numberEntries.set(2, NumberMappingEntry::mapped(unresolved));
  const auto notABundle = dockMapping(3, "com.example.Tool", "/usr/local/bin/tool");
  f.snapshot.numberEntries.set(3, NumberMappingEntry::mapped(notABundle));
  const auto capitals = dockMapping(4, "com.example.Caps", "/Applications/Tool.APP");
  f.snapshot.numberEntries.set(4, NumberMappingEntry::mapped(capitals));
  f.preferences.setShortcutHidesFrontmostApplication(true);
  f.frontmost.setFrontmostBundleIdentifier("com.example.Gone");

  auto registrar = f.makeRegistrar();
  for (int digit : {2, 3, 4}) {
    registrar->handleHotKey(digit);
  }
  ASSERT_EQ(f.failureHandler.failures.size(), 2U);
  EXPECT_EQ(f.failureHandler.failures[0].first,
            AppSwitchingError::configuration(AppSwitchConfigurationFailure::unresolved(
                ApplicationResolutionProblem::notFound())));
  EXPECT_EQ(f.failureHandler.failures[0].second, unresolved);
  EXPECT_EQ(f.failureHandler.failures[1].first,
            AppSwitchingError::configuration(
                AppSwitchConfigurationFailure::invalidResolvedURL(notABundle.lastKnownURL)));
  // A failed check never hides, even when the mapped application is frontmost.
  EXPECT_TRUE(f.hider.hiddenMappings().empty());
  EXPECT_EQ(f.submitter.submitted, std::vector<AppMapping>{capitals});
}

TEST(OptionDigitHotKeyRegistrarTest, TheFrontmostApplicationIsHiddenOnlyWithThePreference) {
  Fixture f;
  const auto mail = *f.snapshot.numberEntries.at(1).mapping();
  f.frontmost.setFrontmostBundleIdentifier("com.example.Mail");
  auto registrar = f.makeRegistrar();

  registrar->handleHotKey(1);
  EXPECT_EQ(f.submitter.submitted, std::vector<AppMapping>{mail});
  EXPECT_TRUE(f.hider.hiddenMappings().empty());

  f.preferences.setShortcutHidesFrontmostApplication(true);
  registrar->handleHotKey(1);
  EXPECT_EQ(f.hider.hiddenMappings(), std::vector<AppMapping>{mail});
  EXPECT_EQ(f.submitter.submitted.size(), 1U);

  // The identifiers are compared exactly: another case is another application.
  f.frontmost.setFrontmostBundleIdentifier("com.example.mail");
  registrar->handleHotKey(1);
  f.frontmost.setFrontmostBundleIdentifier(std::nullopt);
  registrar->handleHotKey(1);
  EXPECT_EQ(f.submitter.submitted.size(), 3U);
  EXPECT_EQ(f.hider.hiddenMappings().size(), 1U);

  registrar->handleHotKey(0);
  registrar->handleHotKey(10);
  EXPECT_EQ(f.submitter.submitted.size(), 3U);
  EXPECT_TRUE(f.presenter.presented.empty());
}

TEST(OptionDigitHotKeyRegistrarTest, UnderTestAPressIsDescribedAndDoesNothingElse) {
  using Outcome = ShortcutTestMonitor::Observation::Outcome;
  Fixture f;
  auto registrar = f.makeRegistrar();
  ASSERT_EQ(registrar->start(ActivationModifierPreference::control), std::nullopt);
  f.frontmost.setFrontmostBundleIdentifier("com.example.Mail");
  f.preferences.setShortcutHidesFrontmostApplication(true);
  std::vector<ShortcutTestMonitor::Observation> seen;
  for (int digit : {1, 7}) {
    auto arming = f.testMonitor.arm([&](const auto& observation) { seen.push_back(observation); });
    registrar->handleHotKey(digit);
  }
  ASSERT_EQ(seen.size(), 2U);
  EXPECT_EQ(seen[0],
            (ShortcutTestMonitor::Observation{.modifier = ActivationModifierPreference::control,
                                              .key = '1',
                                              .outcome = Outcome::hideApplication,
                                              .applicationName = "Mail"}));
  EXPECT_EQ(seen[1].outcome, Outcome::dockPositionUnavailable);
  EXPECT_EQ(seen[1].dockProblem, NumberMappingProblem::emptyDockPosition());
  // Nothing hidden, switched or explained: the failure stays unreported for a real press.
  EXPECT_TRUE(f.hider.hiddenMappings().empty());
  EXPECT_TRUE(f.submitter.submitted.empty());
  EXPECT_TRUE(f.presenter.presented.empty());

  registrar->handleHotKey(7);
  EXPECT_EQ(f.presenter.presented.size(), 1U);
}

} // namespace
} // namespace quenby
