#include "ui/installer/ApplicationInstaller.hpp"

#include "base/InMemoryKeyValueStore.hpp"
#include "ui/installer/ApplicationInstallerTexts.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace quenby {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr const char* kInstalled = "/Applications/Quenby.app";
constexpr const char* kDownloaded = "/Users/ann/Downloads/Quenby.app";

// A disk of paths, with every change written to `log`; any operation can be made to fail.
struct FakeFiles final : ApplicationFileOperating {
  std::optional<std::string> bundle = kDownloaded;
  std::set<std::string> paths{kDownloaded};
  std::vector<std::string> log;
  std::optional<std::string> copyError, trashError;
  bool copyLeavesPartialItem = false;

  std::optional<std::string> runningBundlePath() const override { return bundle; }
  std::string homeDirectory() const override { return "/Users/ann"; }
  bool exists(const std::string& path) const override { return paths.contains(path); }
  std::optional<std::string> copyItem(const std::string& from, const std::string& to) override {
    log.push_back("copy " + from + " -> " + to);
    if (!copyError || copyLeavesPartialItem) {
      paths.insert(to);
    }
    return copyError;
  }
  std::optional<std::string> moveItemToTrash(const std::string& path) override {
    log.push_back("trash " + path);
    if (!trashError) {
      paths.erase(path);
    }
    return trashError;
  }
  std::optional<std::string> removeItem(const std::string& path) override {
    log.push_back("remove " + path);
    paths.erase(path);
    return std::nullopt;
  }
};

struct FakeVerifier final : ApplicationSignatureVerifying {
  std::optional<std::string> error;
  std::vector<std::string> verified;
  std::optional<std::string> verify(const std::string& path) override {
    verified.push_back(path);
    return error;
  }
};

struct FakeRelauncher final : ApplicationRelaunching {
  std::set<std::string> running;
  std::vector<std::string> opened;
  Completion pending;
  int quits = 0;
  bool isRunning(const std::string& path) const override { return running.contains(path); }
  void openNewInstance(const std::string& path, Completion completion) override {
    opened.push_back(path);
    pending = std::move(completion);
  }
  void quit() override { ++quits; }
};

struct FakeAlerts final : ApplicationInstallerAlerting {
  bool answer = true;
  std::vector<ApplicationMoveQuestion> questions;
  std::vector<ApplicationInstallerNotice> notices;
  bool confirmMove(const ApplicationMoveQuestion& question) override {
    questions.push_back(question);
    return answer;
  }
  void inform(const ApplicationInstallerNotice& notice) override { notices.push_back(notice); }
};

struct InstallerHarness {
  std::shared_ptr<FakeFiles> files = std::make_shared<FakeFiles>();
  std::shared_ptr<FakeVerifier> verifier = std::make_shared<FakeVerifier>();
  std::shared_ptr<FakeRelauncher> relauncher = std::make_shared<FakeRelauncher>();
  std::shared_ptr<FakeAlerts> alerts = std::make_shared<FakeAlerts>();
  InMemoryKeyValueStore defaults;
  EnglishLocalizer localizer;
  NullLogger logger;
  std::unique_ptr<ApplicationInstaller> installer = std::make_unique<ApplicationInstaller>(
      ApplicationInstallerPlatform{files, verifier, relauncher, alerts}, defaults, localizer,
      logger);

  void offer() { installer->offerToMoveIfNeeded(); }
  [[nodiscard]] bool offered() const { return defaults.isTrue(ApplicationInstaller::kOfferedKey); }
  [[nodiscard]] std::string onlyNotice() const {
    EXPECT_EQ(alerts->notices.size(), 1U);
    return alerts->notices.empty() ? "" : alerts->notices.front().informativeText;
  }
};

TEST(ApplicationInstallerTest, AsksOnceAndOnlyFromOutsideTheApplicationsFolders) {
  for (const char* path : {"/Applications/Quenby.app", "/Applications/Utilities/Quenby.app",
                           "/applications/Quenby.app", "/Users/ann/Applications/Quenby.app"}) {
    InstallerHarness harness;
    harness.files->bundle = path;
    harness.offer();
    EXPECT_THAT(harness.alerts->questions, IsEmpty()) << path;
    EXPECT_FALSE(harness.offered()) << path;
  }
  for (const char* path :
       {kDownloaded, "/Volumes/Quenby/Quenby.app",
        "/private/var/folders/x1/T/AppTranslocation/0A1B/d/Quenby.app",
        "/Users/ann/src/quenby/build/release/Quenby.app", "/ApplicationsOld/Quenby.app",
        "/Users/ann/Applications Backup/Quenby.app", "/Volumes/Data/Applications/Quenby.app"}) {
    InstallerHarness harness;
    harness.files->bundle = path;
    harness.alerts->answer = false;
    harness.offer();
    harness.offer(); // the next launch
    ASSERT_EQ(harness.alerts->questions.size(), 1U) << path;
    EXPECT_TRUE(harness.offered()) << path;
    EXPECT_THAT(harness.files->log, IsEmpty()) << path;
    const auto& question = harness.alerts->questions.front();
    EXPECT_EQ(question.message, "Move to Applications folder?");
    EXPECT_EQ(question.moveTitle, "Move to Applications");
    EXPECT_EQ(question.keepTitle, "Do Not Move");
  }

  for (const std::optional<std::string>& bundle :
       {std::optional<std::string>(), std::optional<std::string>("/Users/ann/src/build")}) {
    InstallerHarness outsideABundle;
    outsideABundle.files->bundle = bundle;
    outsideABundle.offer();
    EXPECT_THAT(outsideABundle.alerts->questions, IsEmpty());
    EXPECT_FALSE(outsideABundle.offered());
  }

  InstallerHarness askedBefore;
  ASSERT_TRUE(askedBefore.defaults.setVerified(ApplicationInstaller::kOfferedKey, true));
  askedBefore.offer();
  EXPECT_THAT(askedBefore.alerts->questions, IsEmpty());
}

// The original goes to the Trash only after the new copy has launched, and only from a folder of
// the user's own; a disk image or a translocated copy is left as it is.
TEST(ApplicationInstallerTest, MovesVerifiesAndRelaunchesBeforeLettingGoOfTheOriginal) {
  InstallerHarness harness;
  harness.offer();
  EXPECT_THAT(harness.files->log,
              ElementsAre(std::string("copy ") + kDownloaded + " -> " + kInstalled));
  EXPECT_THAT(harness.verifier->verified, ElementsAre(kInstalled));
  ASSERT_THAT(harness.relauncher->opened, ElementsAre(kInstalled));
  EXPECT_EQ(harness.relauncher->quits, 0);
  harness.relauncher->pending(std::nullopt);
  EXPECT_EQ(harness.files->log.back(), std::string("trash ") + kDownloaded);
  EXPECT_EQ(harness.relauncher->quits, 1);
  EXPECT_THAT(harness.alerts->notices, IsEmpty());

  for (const char* path : {"/Volumes/Quenby/Quenby.app",
                           "/private/var/folders/x1/T/AppTranslocation/0A/d/Quenby.app"}) {
    InstallerHarness readOnly;
    readOnly.files->bundle = path;
    readOnly.offer();
    readOnly.relauncher->pending(std::nullopt);
    EXPECT_EQ(readOnly.files->log.size(), 1U) << path; // the copy, nothing else
    EXPECT_EQ(readOnly.relauncher->quits, 1) << path;
  }

  // A copy that does not open is still a good copy: it stays, and so do we.
  InstallerHarness noLaunch;
  noLaunch.offer();
  noLaunch.relauncher->pending("The application cannot be opened.");
  EXPECT_EQ(noLaunch.files->log.size(), 1U);
  EXPECT_TRUE(noLaunch.files->exists(kInstalled));
  EXPECT_EQ(noLaunch.relauncher->quits, 0);
  EXPECT_THAT(noLaunch.onlyNotice(), HasSubstr("The application cannot be opened."));

  // The graph may be gone by the time the system answers.
  InstallerHarness lateAnswer;
  lateAnswer.offer();
  lateAnswer.installer.reset();
  lateAnswer.relauncher->pending(std::nullopt);
  EXPECT_EQ(lateAnswer.relauncher->quits, 0);
}

TEST(ApplicationInstallerTest, AnOlderCopyGoesToTheTrashUnlessItIsRunning) {
  InstallerHarness harness;
  harness.files->paths.insert(kInstalled);
  harness.offer();
  ASSERT_EQ(harness.alerts->questions.size(), 1U);
  EXPECT_EQ(harness.alerts->questions.front().informativeText,
            kInstallerReplaceInformativeText.english);
  EXPECT_THAT(harness.files->log,
              ElementsAre(std::string("trash ") + kInstalled,
                          std::string("copy ") + kDownloaded + " -> " + kInstalled));

  InstallerHarness running;
  running.files->paths.insert(kInstalled);
  running.relauncher->running.insert(kInstalled);
  running.offer();
  EXPECT_THAT(running.files->log, IsEmpty());
  EXPECT_THAT(running.relauncher->opened, IsEmpty());
  EXPECT_EQ(running.onlyNotice(), kInstallerRunningCopyText.english);
  EXPECT_TRUE(running.offered());

  InstallerHarness stuck;
  stuck.files->paths.insert(kInstalled);
  stuck.files->trashError = "The Trash is not available.";
  stuck.offer();
  EXPECT_THAT(stuck.files->log, ElementsAre(std::string("trash ") + kInstalled));
  EXPECT_THAT(stuck.onlyNotice(), HasSubstr("The Trash is not available."));
}

// Whatever fails, the running original is never touched, no half-made copy stays behind and
// nothing is launched.
TEST(ApplicationInstallerTest, FailedCopyOrSignatureRemovesOnlyTheNewCopy) {
  InstallerHarness copyFails;
  copyFails.files->copyError = "The volume is full.";
  copyFails.files->copyLeavesPartialItem = true;
  copyFails.offer();
  EXPECT_THAT(copyFails.files->log,
              ElementsAre(std::string("copy ") + kDownloaded + " -> " + kInstalled,
                          std::string("remove ") + kInstalled));
  EXPECT_EQ(copyFails.onlyNotice(),
            "Quenby could not be copied. It keeps running from where it is. The system "
            "reported: The volume is full.");
  EXPECT_EQ(copyFails.alerts->notices.front().message,
            "Quenby could not be moved to the Applications folder");
  EXPECT_THAT(copyFails.verifier->verified, IsEmpty());

  InstallerHarness badSignature;
  badSignature.verifier->error = "A sealed resource is missing or invalid.";
  badSignature.offer();
  EXPECT_THAT(badSignature.files->log,
              ElementsAre(std::string("copy ") + kDownloaded + " -> " + kInstalled,
                          std::string("remove ") + kInstalled));
  EXPECT_TRUE(badSignature.files->exists(kDownloaded));
  EXPECT_THAT(badSignature.onlyNotice(), HasSubstr("A sealed resource is missing or invalid."));

  for (InstallerHarness* harness : {&copyFails, &badSignature}) {
    EXPECT_THAT(harness->relauncher->opened, IsEmpty());
    EXPECT_EQ(harness->relauncher->quits, 0);
  }
}

} // namespace
} // namespace quenby
