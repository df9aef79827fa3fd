#include "simulation/ScenarioRunner.hpp"

#include "app/AppCoordinatorFactory.hpp"
#include "app/AppLaunchController.hpp"
#include "simulation/DockPositionJSON.hpp"
#include "simulation/PropertyListJSON.hpp"
#include "simulation/ScenarioArguments.hpp"
#include "simulation/ScenarioLineTokenizer.hpp"
#include "simulation/SimulatedPlatform.hpp"

#include <array>
#include <chrono>
#include <map>

namespace quenby {
namespace {

/// Lines of the scenario language that belong to features this build does not have yet.
constexpr std::array kLaterFeatureLines{"permission",   "hotkey-taken",  "frontmost",
                                        "fullscreen",   "running",       "terminated",
                                        "layout",       "reduce-motion", "open-fails",
                                        "open-latency", "hotkey",        "hotkey-event",
                                        "modifier",     "modifier-lost", "key",
                                        "press",        "tap-disable",   "tap-reenable-fails",
                                        "click",        "drag",          "menu",
                                        "alert",        "assign",        "unassign",
                                        "reset-usage"};

} // namespace

ScenarioRunner::ScenarioRunner(ScenarioEventSink& sink, std::string scriptDirectory)
    : recorder_(sink, *world_.scheduler()), scriptDirectory_(std::move(scriptDirectory)) {}

ScenarioRunner::~ScenarioRunner() = default;

int ScenarioRunner::run(std::istream& script) {
  std::string line;
  int number = 0;
  while (std::getline(script, line)) {
    ++number;
    const std::size_t start = line.find_first_not_of(" \t\r");
    if (start == std::string::npos) {
      continue;
    }
    if (line[start] == '#') {
      if (line.compare(start, 2, "#>") == 0 && commentHandler_) {
        const std::size_t text = line.find_first_not_of(' ', start + 2);
        commentHandler_(text == std::string::npos ? std::string_view() : line.substr(text));
      }
      continue;
    }
    try {
      auto arguments = tokenizeScenarioLine(line);
      if (!arguments) {
        throw ScenarioLineError{arguments.error()};
      }
      runLine(*arguments);
      settle();
    } catch (const ScenarioLineError& failure) {
      error_ = "line " + std::to_string(number) + ": " + failure.message;
      return 2;
    } catch (const std::exception& failure) {
      // The simulated world refused (a missing bundle, an unreadable file): the line is wrong.
      error_ = "line " + std::to_string(number) + ": " + world_.withoutDiskPrefix(failure.what());
      return 2;
    }
  }
  return 0;
}

void ScenarioRunner::settle() { world_.scheduler()->runPending(); }

void ScenarioRunner::runLine(const Arguments& arguments) {
  using Handler = void (ScenarioRunner::*)(const Arguments&);
  static const std::map<std::string_view, Handler> handlers{
      {"default", &ScenarioRunner::defaultLine},
      {"env", &ScenarioRunner::envLine},
      {"screen", &ScenarioRunner::screenLine},
      {"mouse", &ScenarioRunner::mouseLine},
      {"launch", &ScenarioRunner::launchLine},
      {"terminate", &ScenarioRunner::terminateLine},
      {"wait", &ScenarioRunner::waitLine},
      {"pref", &ScenarioRunner::prefLine},
      {"state", &ScenarioRunner::stateLine},
      {"app", &ScenarioRunner::appLine},
      {"app-plist", &ScenarioRunner::appPlistLine},
      {"app-remove", &ScenarioRunner::appRemoveLine},
      {"app-move", &ScenarioRunner::appMoveLine},
      {"app-touch", &ScenarioRunner::appTouchLine},
      {"dock", &ScenarioRunner::dockLine},
      {"dock-notify", &ScenarioRunner::dockNotifyLine},
  };
  const std::string& command = arguments.front();
  if (const auto found = handlers.find(command); found != handlers.end()) {
    (this->*found->second)(arguments);
    return;
  }
  for (const char* later : kLaterFeatureLines) {
    if (command == later) {
      throw ScenarioLineError{"not supported yet"};
    }
  }
  throw ScenarioLineError{"unknown line \"" + command + "\""};
}

void ScenarioRunner::defaultLine(const Arguments& arguments) {
  expectArgumentCount(arguments, 3, 4, "default KEY TYPE VALUE");
  const std::string& key = arguments[1];
  const std::string& type = arguments[2];
  auto& defaults = *world_.defaults();
  if (type == "absent") {
    expectArgumentCount(arguments, 3, 3, "default KEY absent");
    defaults.remove(key);
    return;
  }
  expectArgumentCount(arguments, 4, 4, "default KEY TYPE VALUE");
  const std::string& text = arguments[3];
  if (type == "data" && text.starts_with('@')) {
    defaults.set(key, readFileBytes(resolveScriptFile(text.substr(1))));
    return;
  }
  defaults.set(key, parseDefaultValue(type, text));
}

void ScenarioRunner::envLine(const Arguments& arguments) {
  expectArgumentCount(arguments, 3, 3, "env NAME VALUE");
  world_.environment()[arguments[1]] = arguments[2];
}

void ScenarioRunner::screenLine(const Arguments& arguments) {
  expectArgumentCount(arguments, 5, 10, "screen X Y W H [VX VY VW VH] [main]");
  Arguments numbers(arguments.begin() + 1, arguments.end());
  const bool isMain = numbers.back() == "main";
  if (isMain) {
    numbers.pop_back();
  }
  if (numbers.size() != 4 && numbers.size() != 8) {
    throw ScenarioLineError{"usage: screen X Y W H [VX VY VW VH] [main]"};
  }
  const Rect frame{parseReal(numbers[0]), parseReal(numbers[1]), parseReal(numbers[2]),
                   parseReal(numbers[3])};
  const Rect visible = numbers.size() == 8 ? Rect{parseReal(numbers[4]), parseReal(numbers[5]),
                                                  parseReal(numbers[6]), parseReal(numbers[7])}
                                           : frame;
  if (frame.width <= 0 || frame.height <= 0) {
    throw ScenarioLineError{"a screen needs a positive width and height"};
  }
  auto& screens = world_.screens();
  if (world_.screensAreDefault() && !application_) {
    screens.clear();
  }
  world_.markScreensCustomised();
  if (isMain) {
    for (auto& screen : screens) {
      screen.isMain = false;
    }
  }
  screens.push_back({frame, visible, isMain || screens.empty()});
}

void ScenarioRunner::mouseLine(const Arguments& arguments) {
  expectArgumentCount(arguments, 3, 3, "mouse X Y");
  world_.mouse() = Point{parseReal(arguments[1]), parseReal(arguments[2])};
}

void ScenarioRunner::launchLine(const Arguments& arguments) {
  expectArgumentCount(arguments, 1, 1, "launch");
  if (application_) {
    throw ScenarioLineError{"the application is already running"};
  }
  const Environment environment = world_.environment();
  application_ = std::make_unique<AppLaunchController>(
      AppLaunchContext::fromEnvironment(environment),
      [this, environment]() -> std::unique_ptr<AppCoordinating> {
        auto coordinator = makeAppCoordinator(makeSimulatedPlatformServices(world_, recorder_),
                                              environment, &runtime_);
        coordinator_ = coordinator.get();
        return coordinator;
      },
      [] { return std::make_unique<InertStatusItemPresenter>(); });
  hasTerminated_ = false;
  application_->applicationDidFinishLaunching();
  recorder_.emit("launched", {{"menuBarExtra", application_->hasStatusItem()}});
}

void ScenarioRunner::terminateLine(const Arguments& arguments) {
  expectArgumentCount(arguments, 1, 1, "terminate");
  if (!application_) {
    return; // nothing running: quitting twice does nothing
  }
  application_->applicationWillTerminate();
  application_.reset();
  coordinator_ = nullptr;
  hasTerminated_ = true;
  recorder_.emit("terminated");
}

void ScenarioRunner::waitLine(const Arguments& arguments) {
  expectArgumentCount(arguments, 2, 2, "wait MS");
  const std::int64_t milliseconds = parseInteger(arguments[1]);
  if (milliseconds < 0) {
    throw ScenarioLineError{"wait needs a duration of 0 ms or more"};
  }
  world_.scheduler()->advanceBy(std::chrono::milliseconds(milliseconds));
}

void ScenarioRunner::prefLine(const Arguments& arguments) {
  expectArgumentCount(arguments, 3, 3, "pref NAME VALUE");
  const auto runtime = runningRuntime();
  if (!runtime) {
    throw ScenarioLineError{"pref needs a launched application"};
  }
  const auto changed = runtime->data().preferences().setRaw(arguments[1], arguments[2]);
  if (!changed) {
    throw ScenarioLineError{changed.error()};
  }
}

void ScenarioRunner::stateLine(const Arguments& arguments) {
  expectArgumentCount(arguments, 1, 1, "state");
  nlohmann::ordered_json fields = nlohmann::ordered_json::object();
  if (coordinator_ != nullptr) {
    fields["coordinator"] = AppCoordinator::stateName(coordinator_->state());
  } else {
    fields["coordinator"] = hasTerminated_ ? "stopped" : "notLaunched";
  }
  if (const auto runtime = runningRuntime()) {
    auto preferences = nlohmann::ordered_json::object();
    for (const auto& [name, value] : runtime->data().preferences().rawValues()) {
      preferences[name] = propertyListJSON(value);
    }
    fields["preferences"] = std::move(preferences);
    auto dock = nlohmann::ordered_json::array();
    const auto& entries = runtime->shortcuts().dockNumberProvider().current().entries;
    for (int position = NumberMappingEntries::kFirstPosition;
         position <= NumberMappingEntries::kLastPosition; ++position) {
      dock.push_back(dockPositionJSON(position, entries.at(position), [this](const FileURL& url) {
        return world_.scriptPath(url.path());
      }));
    }
    fields["dock"] = std::move(dock);
    fields["dockRevision"] = runtime->shortcuts().dockNumberProvider().current().revision;
    fields["catalogRevision"] = runtime->shortcuts().resolver().catalogRevision();
  } else {
    fields["preferences"] = nullptr;
  }
  recorder_.emit("state", std::move(fields));
}

void ScenarioRunner::appLine(const Arguments& arguments) {
  expectArgumentCount(arguments, 3, 4, "app PATH BUNDLE_ID [NAME]");
  const FileURL bundle = diskURL(arguments[1]);
  const std::string name =
      arguments.size() == 4 ? arguments[3] : bundle.lastPathComponentWithoutExtension();
  world_.applications().install(bundle, arguments[2], name);
}

void ScenarioRunner::appPlistLine(const Arguments& arguments) {
  expectArgumentCount(arguments, 3, 3, "app-plist PATH FILE");
  world_.applications().installWithPropertyList(diskURL(arguments[1]),
                                                resolveScriptFile(arguments[2]));
}

void ScenarioRunner::appRemoveLine(const Arguments& arguments) {
  expectArgumentCount(arguments, 2, 2, "app-remove PATH");
  world_.applications().remove(diskURL(arguments[1]));
}

void ScenarioRunner::appMoveLine(const Arguments& arguments) {
  expectArgumentCount(arguments, 3, 3, "app-move FROM TO");
  world_.applications().move(diskURL(arguments[1]), diskURL(arguments[2]));
}

void ScenarioRunner::appTouchLine(const Arguments& arguments) {
  expectArgumentCount(arguments, 2, 2, "app-touch PATH");
  world_.applications().touch(diskURL(arguments[1]));
}

void ScenarioRunner::dockLine(const Arguments& arguments) {
  expectArgumentCount(arguments, 2, 5,
                      "dock app|spacer|folder|url|document|running-only|plist|"
                      "clear|missing|invalid|sync-fails …");
  const std::string& kind = arguments[1];
  auto& dock = world_.dock();
  const auto needs = [&arguments](std::size_t count, const char* usage) {
    expectArgumentCount(arguments, count, count, usage);
  };
  if (kind == "app" || kind == "running-only") {
    if (kind == "running-only") {
      needs(3, "dock running-only PATH");
    } else {
      expectArgumentCount(arguments, 3, 5, "dock app PATH [BUNDLE_ID|-] [LABEL]");
    }
    const FileURL bundle = diskURL(arguments[2]);
    std::optional<std::string> identifier = world_.applications().bundleIdentifier(bundle);
    if (arguments.size() >= 4) {
      identifier = arguments[3] == "-" ? std::nullopt : std::optional(arguments[3]);
    }
    const std::string label = arguments.size() == 5
                                  ? arguments[4]
                                  : world_.applications().bundleName(bundle).value_or(
                                        bundle.lastPathComponentWithoutExtension());
    dock.appendApplication(bundle, identifier, label, kind == "running-only");
  } else if (kind == "spacer") {
    needs(2, "dock spacer");
    dock.appendSpacer();
  } else if (kind == "folder") {
    needs(3, "dock folder PATH");
    dock.appendFolder(diskURL(arguments[2]));
  } else if (kind == "url") {
    needs(3, "dock url URL");
    dock.appendWebLink(arguments[2]);
  } else if (kind == "document") {
    needs(3, "dock document PATH");
    dock.appendDocument(diskURL(arguments[2]));
  } else if (kind == "plist") {
    needs(3, "dock plist FILE");
    dock.useFile(resolveScriptFile(arguments[2]), world_.diskRoot());
  } else if (kind == "clear") {
    needs(2, "dock clear");
    dock.clear();
  } else if (kind == "missing") {
    needs(2, "dock missing");
    dock.removePersistentApps();
  } else if (kind == "invalid") {
    needs(2, "dock invalid");
    dock.makePersistentAppsInvalid();
  } else if (kind == "sync-fails") {
    needs(3, "dock sync-fails on|off");
    if (arguments[2] != "on" && arguments[2] != "off") {
      throw ScenarioLineError{"usage: dock sync-fails on|off"};
    }
    dock.setSynchronizationFails(arguments[2] == "on");
  } else {
    throw ScenarioLineError{"unknown Dock item \"" + kind + "\""};
  }
}

void ScenarioRunner::dockNotifyLine(const Arguments& arguments) {
  expectArgumentCount(arguments, 1, 1, "dock-notify");
  world_.notificationCenter()->post("com.apple.dock.prefchanged");
}

FileURL ScenarioRunner::diskURL(const std::string& scriptPath) const {
  if (scriptPath.empty() || scriptPath.front() != '/') {
    throw ScenarioLineError{"\"" + scriptPath + "\" is not an absolute path"};
  }
  return FileURL::fromPath(world_.hostPath(scriptPath));
}

std::shared_ptr<AppRuntime> ScenarioRunner::runningRuntime() const {
  return application_ ? runtime_.lock() : nullptr;
}

std::string ScenarioRunner::resolveScriptFile(const std::string& name) const {
  if (name.empty() || name.front() == '/') {
    return name;
  }
  return scriptDirectory_ + "/" + name;
}

} // namespace quenby
