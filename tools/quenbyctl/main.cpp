#include "base/PosixFileSystem.hpp"
#include "base/libplist/LibplistPropertyListDecoder.hpp"
#include "quenbyctl/DockCommand.hpp"
#include "quenbyctl/HUDCommand.hpp"
#include "quenbyctl/SimulateCommand.hpp"
#include "shortcuts/running/IcnsApplicationIconLoader.hpp"

#include <iostream>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr const char* kUsage =
    "usage: quenbyctl <command> [options]\n"
    "\n"
    "  simulate [--narrate] SCRIPT         run a scenario against a simulated Mac\n"
    "  dock --plist FILE [--root DIR] [--json]\n"
    "                                      show the nine Dock positions as Quenby derives them\n"
    "  hud --svg FILE [--theme light|dark|system] [--size small|standard|large]\n"
    "      [--plist DOCK] [--root DIR] [--letters JSON]\n"
    "                                      draw the keyboard HUD as an SVG picture\n";

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
  std::cerr << "quenbyctl: unknown command \"" << words.front() << "\"\n\n" << kUsage;
  return 2;
}
