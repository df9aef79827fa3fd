// The keyboard and the mouse as the HUD meets them: physical keys and modifiers, the layout that
// says what the keys type, the keyboard tap's permissions and the system switching the tap off,
// clicks on and around the panel.

#include "app/AppRuntime.hpp"
#include "simulation/ScenarioArguments.hpp"
#include "simulation/ScenarioLineRegistry.hpp"

namespace quenby {
namespace {

using Arguments = ScenarioLineRegistry::Arguments;

bool parseDirection(const std::string& text, std::string_view usage) {
  if (text == "down") {
    return true;
  }
  if (text == "up") {
    return false;
  }
  throw ScenarioLineError{"expected down or up: " + std::string(usage)};
}

std::uint16_t parseModifierKey(const std::string& name) {
  if (const auto keyCode = SimulatedKeyboard::modifierKeyCode(name)) {
    return *keyCode;
  }
  throw ScenarioLineError{"\"" + name +
                          "\" is not a modifier key: left-option right-option left-control "
                          "right-control left-shift right-shift left-command right-command"};
}

std::uint16_t parseKeyCode(const std::string& text) {
  const auto code = parseInteger(text);
  if (code < 0 || code > 127) {
    throw ScenarioLineError{"\"" + text + "\" is not a virtual key code from 0 to 127"};
  }
  return static_cast<std::uint16_t>(code);
}

SimulatedKeyboardEventTap& requireEventTap(const ScenarioContext& context, std::string_view line) {
  if (SimulatedKeyboardEventTap* tap = context.eventTap()) {
    return *tap;
  }
  throw ScenarioLineError{std::string(line) + " needs a launched application"};
}

void permissionLine(ScenarioContext& context, const Arguments& arguments) {
  constexpr const char* usage = "permission accessibility|input-monitoring granted|denied";
  expectArgumentCount(arguments, 3, 3, usage);
  if (arguments[2] != "granted" && arguments[2] != "denied") {
    throw ScenarioLineError{"expected granted or denied: " + std::string(usage)};
  }
  const bool granted = arguments[2] == "granted";
  SimulatedKeyboard& keyboard = context.world().keyboard();
  if (arguments[1] == "accessibility") {
    keyboard.accessibilityGranted = granted;
  } else if (arguments[1] == "input-monitoring") {
    keyboard.inputMonitoringGranted = granted;
  } else {
    throw ScenarioLineError{"\"" + arguments[1] + "\" is not a permission: " + std::string(usage)};
  }
}

void modifierLine(ScenarioContext& context, const Arguments& arguments) {
  constexpr const char* usage = "modifier NAME down|up";
  expectArgumentCount(arguments, 3, 3, usage);
  const auto keyCode = parseModifierKey(arguments[1]);
  context.world().keyboard().setDown(keyCode, parseDirection(arguments[2], usage));
  if (SimulatedKeyboardEventTap* tap = context.eventTap()) {
    tap->deliverFlagsChanged(keyCode);
  }
}

void modifierLostLine(ScenarioContext& context, const Arguments& arguments) {
  constexpr const char* usage = "modifier-lost NAME up";
  expectArgumentCount(arguments, 3, 3, usage);
  if (arguments[2] != "up") {
    throw ScenarioLineError{"only a release can be lost: " + std::string(usage)};
  }
  context.world().keyboard().setDown(parseModifierKey(arguments[1]), false);
}

void key(ScenarioContext& context, std::uint16_t keyCode, bool down, bool isRepeat) {
  SimulatedKeyboard& keyboard = context.world().keyboard();
  if (down) {
    ++keyboard.systemKeyDownCount;
  }
  if (!keyboard.tapHearsKeys()) {
    return;
  }
  if (SimulatedKeyboardEventTap* tap = context.eventTap()) {
    tap->deliverKey(keyCode, down, isRepeat);
  }
}

void keyLine(ScenarioContext& context, const Arguments& arguments) {
  constexpr const char* usage = "key down|up CODE [repeat]";
  expectArgumentCount(arguments, 3, 4, usage);
  if (arguments.size() == 4 && arguments[3] != "repeat") {
    throw ScenarioLineError{"expected repeat: " + std::string(usage)};
  }
  key(context, parseKeyCode(arguments[2]), parseDirection(arguments[1], usage),
      arguments.size() == 4);
}

void pressLine(ScenarioContext& context, const Arguments& arguments) {
  expectArgumentCount(arguments, 2, 2, "press CODE");
  const auto keyCode = parseKeyCode(arguments[1]);
  key(context, keyCode, true, false);
  key(context, keyCode, false, false);
}

void tapDisableLine(ScenarioContext& context, const Arguments& arguments) {
  constexpr const char* usage = "tap-disable timeout|user-input";
  expectArgumentCount(arguments, 2, 2, usage);
  auto& tap = requireEventTap(context, "tap-disable");
  if (arguments[1] == "timeout") {
    tap.disable(KeyboardTapEventType::tapDisabledByTimeout);
  } else if (arguments[1] == "user-input") {
    tap.disable(KeyboardTapEventType::tapDisabledByUserInput);
  } else {
    throw ScenarioLineError{"expected timeout or user-input: " + std::string(usage)};
  }
}

Point parsePoint(const std::string& x, const std::string& y) {
  return {parseReal(x), parseReal(y)};
}

void click(ScenarioContext& context, Point down, Point up, SimulatedMouseMonitors::Button button,
           std::string_view line) {
  context.world().mouse() = up;
  SimulatedMouseMonitors* mouse = context.mouse();
  if (mouse == nullptr) {
    throw ScenarioLineError{std::string(line) + " needs a launched application"};
  }
  mouse->click(down, up, button, context.hudPanel());
}

void clickLine(ScenarioContext& context, const Arguments& arguments) {
  constexpr const char* usage = "click X Y [left|right|other]";
  expectArgumentCount(arguments, 3, 4, usage);
  const std::string button = arguments.size() == 4 ? arguments[3] : "left";
  if (button != "left" && button != "right" && button != "other") {
    throw ScenarioLineError{"\"" + button + "\" is not a button: " + std::string(usage)};
  }
  const auto point = parsePoint(arguments[1], arguments[2]);
  click(context, point, point,
        button == "left"    ? SimulatedMouseMonitors::Button::left
        : button == "right" ? SimulatedMouseMonitors::Button::right
                            : SimulatedMouseMonitors::Button::other,
        "click");
}

void dragLine(ScenarioContext& context, const Arguments& arguments) {
  expectArgumentCount(arguments, 5, 5, "drag X1 Y1 X2 Y2");
  click(context, parsePoint(arguments[1], arguments[2]), parsePoint(arguments[3], arguments[4]),
        SimulatedMouseMonitors::Button::left, "drag");
}

void layoutLine(ScenarioContext& context, const Arguments& arguments) {
  constexpr const char* usage = "layout us|azerty|cyrillic";
  expectArgumentCount(arguments, 2, 2, usage);
  SimulatedKeyboard& keyboard = context.world().keyboard();
  if (arguments[1] == "us") {
    keyboard.selectLayout(SimulatedKeyboard::Layout::us);
  } else if (arguments[1] == "azerty") {
    keyboard.selectLayout(SimulatedKeyboard::Layout::azerty);
  } else if (arguments[1] == "cyrillic") {
    keyboard.selectLayout(SimulatedKeyboard::Layout::cyrillic);
  } else {
    throw ScenarioLineError{"\"" + arguments[1] + "\" is not a layout: " + std::string(usage)};
  }
}

void secureInputLine(ScenarioContext& context, const Arguments& arguments) {
  expectArgumentCount(arguments, 2, 2, "secure-input APP|off");
  auto& holder = context.world().keyboard().secureInputHolder;
  if (arguments[1] == "off") {
    holder.reset();
  } else {
    holder = arguments[1];
  }
}

void tapDeafLine(ScenarioContext& context, const Arguments& arguments) {
  constexpr const char* usage = "tap-deaf on|off";
  expectArgumentCount(arguments, 2, 2, usage);
  context.world().keyboard().tapDeaf = parseOnOff(arguments[1], usage);
}

void writeState(const ScenarioContext&, AppRuntime* runtime, nlohmann::ordered_json& fields) {
  if (runtime == nullptr) {
    fields["hud"] = nullptr;
    fields["hudVisible"] = false;
    fields["secureInput"] = nullptr;
    fields["tapStale"] = false;
    return;
  }
  fields["hud"] = std::string(runtime->hud().feature().health().caseName());
  fields["hudVisible"] = runtime->hud().controller().isVisible();
  const KeyboardAccessCondition& access = runtime->hud().keyboardAccess().condition();
  fields["secureInput"] =
      access.secureInputHolder ? nlohmann::ordered_json(*access.secureInputHolder) : nullptr;
  fields["tapStale"] = access.tapLooksStale;
}

} // namespace

void registerHUDScenarioLines(ScenarioLineRegistry& registry) {
  registry.addLine("permission", permissionLine);
  registry.addLine("modifier", modifierLine);
  registry.addLine("modifier-lost", modifierLostLine);
  registry.addLine("layout", layoutLine);
  registry.addLine("key", keyLine);
  registry.addLine("press", pressLine);
  registry.addLine("tap-disable", tapDisableLine);
  registry.addLine("secure-input", secureInputLine);
  registry.addLine("tap-deaf", tapDeafLine);
  registry.addLine("tap-reenable-fails", [](ScenarioContext& context, const Arguments& arguments) {
    expectArgumentCount(arguments, 1, 1, "tap-reenable-fails");
    requireEventTap(context, "tap-reenable-fails").failNextReenable();
  });
  registry.addLine("click", clickLine);
  registry.addLine("drag", dragLine);
  registry.addStateFields(writeState);
}

} // namespace quenby
