#include "base/PosixFileSystem.hpp"
#include "base/libplist/LibplistPropertyListDecoder.hpp"
#include "data/usage/FixedOffsetUsageCalendar.hpp"
#include "quenbyctl/DockCommand.hpp"
#include "quenbyctl/HUDCommand.hpp"
#include "quenbyctl/LettersCommand.hpp"
#include "quenbyctl/SimulateCommand.hpp"
#include "quenbyctl/UsageCommand.hpp"
#include "shortcuts/running/IcnsApplicationIconLoader.hpp"

#include <ctime>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr const char* kUsage =
    "usage: quenbyctl <command> [options]\n"
    "\n"
    "  simulate [--narrate] [--save-defaults FILE] SCRIPT\n"
    "                                      run a scenario against a simulated Mac\n"
    "  dock --plist FILE [--root DIR] [--json]\n"
    "                                      show the nine Dock positions as Quenby derives them\n"
    "  hud --svg FILE [--theme light|dark|system] [--size small|standard|large]\n"
    "      [--plist DOCK] [--root DIR] [--letters JSON]\n"
    "                                      draw the keyboard HUD as an SVG picture\n"
    "  usage [--json|--csv|--svg FILE] [--defaults FILE] [--today YYYY-MM-DD]\n"
    "                                      show the usage analytics Quenby kept\n"
    "  letters [--json] [--defaults FILE]  show the letter shortcuts Quenby kept\n"
    "\n"
    "  --defaults FILE: a copy of Quenby's preferences (binary or XML property list), only read;\n"
    "  on a Mac the default is ~/Library/Preferences/com.brimfold.Quenby.plist.\n";

/// The user's time zone as it stands now, which decides the local day of "today".
std::chrono::seconds localUTCOffset(quenby::WallTime now) {
  const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
  std::tm local{};
  if (localtime_r(&seconds, &local) == nullptr) {
    return std::chrono::seconds{0};
  }
  return std::chrono::seconds{local.tm_gmtoff};
}

} // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> words(argv + 1, argv + argc);
  if (words.empty() || words.front() == "--help" || words.front() == "-h" ||
      words.front() == "help") {
    (words.empty() ? std::cerr : std::cout) << kUsage;
    return words.empty() ? 2 : 0;
  }
  const std::vector<std::string> arguments(words.begin() + 1, words.end());
  if (words.front() == "simulate") {
    return quenby::runSimulateCommand(arguments, std::cin, std::cout, std::cerr);
  }
  if (words.front() == "dock") {
    return quenby::runDockCommand(arguments, std::cout, std::cerr);
  }
  if (words.front() == "hud") {
    // The icons the bundles carry in their icon files, as on a Mac without AppKit to draw them.
    const auto loader = std::make_shared<quenby::IcnsApplicationIconLoader>(
        std::make_shared<quenby::PosixFileSystem>(),
        std::make_shared<quenby::LibplistPropertyListDecoder>());
    return quenby::runHUDCommand(
        arguments, std::cout, std::cerr,
        [loader](const quenby::FileURL& bundle)
            -> std::shared_ptr<const quenby::PreparedApplicationIcon> {
          auto icon = loader->loadIcon(bundle);
          return icon ? std::make_shared<const quenby::PreparedApplicationIcon>(std::move(*icon))
                      : nullptr;
        });
  }
  if (words.front() == "usage") {
    const auto now = std::chrono::system_clock::now();
    const quenby::FixedOffsetUsageCalendar calendar(localUTCOffset(now));
    return quenby::runUsageCommand(arguments, std::cout, std::cerr, {now, calendar},
                                   quenby::LibplistPropertyListDecoder());
  }
  if (words.front() == "letters") {
    return quenby::runLettersCommand(arguments, std::cout, std::cerr,
                                     quenby::LibplistPropertyListDecoder());
  }
  std::cerr << "quenbyctl: unknown command \"" << words.front() << "\"\n\n" << kUsage;
  return 2;
}
