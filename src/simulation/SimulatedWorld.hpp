#pragma once

#include "base/BasePlatform.hpp"
#include "base/Environment.hpp"
#include "base/Geometry.hpp"
#include "base/InMemoryKeyValueStore.hpp"
#include "base/ManualScheduler.hpp"
#include "base/PosixFileSystem.hpp"
#include "base/libplist/LibplistPropertyListDecoder.hpp"
#include "simulation/SimulatedApplications.hpp"
#include "simulation/SimulatedDistributedNotificationCenter.hpp"
#include "simulation/SimulatedDock.hpp"
#include "simulation/SimulatedHotKeys.hpp"
#include "simulation/SimulatedKeyboard.hpp"
#include "simulation/SimulatedLaunchServices.hpp"
#include "simulation/SimulatedWorkspace.hpp"
#include "simulation/TemporaryDirectory.hpp"

#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quenby {

/// One screen of the simulated Mac.
struct SimulatedScreen {
  Rect frame;
  Rect visibleFrame;
  bool isMain = false;
};

/// The simulated Mac that outlives every simulated process: its disk (a temporary directory that
/// stands for "/") with its application bundles and database, the Dock's preferences, the
/// system-wide notification centre, the user defaults, the clock, the screens and the environment
/// the next launch gets. A `launch` after a `terminate` finds all of it as the previous process
/// left it.
class SimulatedWorld {
public:
  SimulatedWorld();

  /// Where a script's absolute path lives on the real disk.
  [[nodiscard]] std::string hostPath(std::string_view scriptPath) const;
  /// A real path as the script sees it: without the disk's prefix.
  [[nodiscard]] std::string scriptPath(std::string_view hostPath) const;
  /// `text` with every mention of the disk's real location removed, for messages.
  [[nodiscard]] std::string withoutDiskPrefix(std::string text) const;
  [[nodiscard]] const std::string& diskRoot() const { return disk_.path(); }

  [[nodiscard]] const std::shared_ptr<InMemoryKeyValueStore>& defaults() const { return defaults_; }
  [[nodiscard]] const std::shared_ptr<ManualScheduler>& scheduler() const { return scheduler_; }
  /// Calendar time on the world's virtual time, the same across relaunches.
  [[nodiscard]] const std::shared_ptr<WallClock>& wallClock() const { return wallClock_; }

  [[nodiscard]] const std::shared_ptr<PosixFileSystem>& fileSystem() const { return fileSystem_; }
  [[nodiscard]] const std::shared_ptr<LibplistPropertyListDecoder>& decoder() const {
    return decoder_;
  }
  [[nodiscard]] const std::shared_ptr<SimulatedLaunchServices>& launchServices() const {
    return launchServices_;
  }
  [[nodiscard]] const std::shared_ptr<SimulatedDistributedNotificationCenter>&
  notificationCenter() const {
    return notificationCenter_;
  }
  [[nodiscard]] SimulatedApplications& applications() { return applications_; }
  [[nodiscard]] SimulatedDock& dock() { return dock_; }
  [[nodiscard]] SimulatedWorkspace& workspace() { return workspace_; }
  [[nodiscard]] SimulatedHotKeys& hotKeys() { return hotKeys_; }
  [[nodiscard]] SimulatedKeyboard& keyboard() { return keyboard_; }

  [[nodiscard]] Environment& environment() { return environment_; }
  /// The user's answers to the coming alerts, oldest first: true continues, false cancels.
  [[nodiscard]] std::deque<bool>& alertAnswers() { return alertAnswers_; }
  [[nodiscard]] std::vector<SimulatedScreen>& screens() { return screens_; }
  [[nodiscard]] const std::vector<SimulatedScreen>& screens() const { return screens_; }
  [[nodiscard]] Point& mouse() { return mouse_; }
  [[nodiscard]] Point mouse() const { return mouse_; }
  /// The system's reduce-motion accessibility setting.
  [[nodiscard]] bool reducesMotion() const { return reducesMotion_; }
  void setReducesMotion(bool on) { reducesMotion_ = on; }
  /// The default screen is replaced by the first `screen` line before the first launch.
  [[nodiscard]] bool screensAreDefault() const { return screensAreDefault_; }
  void markScreensCustomised() { screensAreDefault_ = false; }

private:
  TemporaryDirectory disk_;
  std::shared_ptr<InMemoryKeyValueStore> defaults_ = std::make_shared<InMemoryKeyValueStore>();
  std::shared_ptr<ManualScheduler> scheduler_ = std::make_shared<ManualScheduler>();
  std::shared_ptr<WallClock> wallClock_ =
      std::make_shared<FollowingWallClock>(scheduler_, BasePlatform::kInertStart);
  std::shared_ptr<PosixFileSystem> fileSystem_ = std::make_shared<PosixFileSystem>();
  std::shared_ptr<LibplistPropertyListDecoder> decoder_ =
      std::make_shared<LibplistPropertyListDecoder>();
  std::shared_ptr<SimulatedLaunchServices> launchServices_ =
      std::make_shared<SimulatedLaunchServices>();
  std::shared_ptr<SimulatedDistributedNotificationCenter> notificationCenter_ =
      std::make_shared<SimulatedDistributedNotificationCenter>();
  SimulatedApplications applications_{decoder_, *launchServices_, *notificationCenter_};
  SimulatedDock dock_{fileSystem_, decoder_};
  SimulatedWorkspace workspace_;
  SimulatedHotKeys hotKeys_;
  SimulatedKeyboard keyboard_;
  Environment environment_;
  std::deque<bool> alertAnswers_;
  std::vector<SimulatedScreen> screens_;
  Point mouse_{720, 450};
  bool reducesMotion_ = false;
  bool screensAreDefault_ = true;
};

} // namespace quenby
