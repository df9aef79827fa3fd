#include "simulation/SimulatedKeyboard.hpp"

#include <array>

namespace quenby {
namespace {

struct ModifierKey {
  std::string_view name;
  std::uint16_t keyCode;
  std::uint64_t flag;
  std::uint64_t deviceFlag;
};

constexpr std::uint64_t kShift = 0x20000;
constexpr std::uint64_t kControl = 0x40000;
constexpr std::uint64_t kOption = 0x80000;
constexpr std::uint64_t kCommand = 0x100000;

constexpr std::array<ModifierKey, 8> kModifierKeys{{
    {"left-option", 58, kOption, 0x20},
    {"right-option", 61, kOption, 0x40},
    {"left-control", 59, kControl, 0x1},
    {"right-control", 62, kControl, 0x2000},
    {"left-shift", 56, kShift, 0x2},
    {"right-shift", 60, kShift, 0x4},
    {"left-command", 55, kCommand, 0x8},
    {"right-command", 54, kCommand, 0x10},
}};

} // namespace

std::optional<std::uint16_t> SimulatedKeyboard::modifierKeyCode(std::string_view name) {
  for (const auto& key : kModifierKeys) {
    if (key.name == name) {
      return key.keyCode;
    }
  }
  return std::nullopt;
}

std::uint64_t SimulatedKeyboard::flags() const {
  std::uint64_t flags = 0;
  for (const auto& key : kModifierKeys) {
    if (isDown(key.keyCode)) {
      flags |= key.flag | key.deviceFlag;
    }
  }
  return flags;
}

} // namespace quenby
