// The running applications, the hot keys and the letters: what a shortcut acts on and how it is
// pressed.

#include "app/AppRuntime.hpp"
#include "shortcuts/hotkeys/OptionDigitHotKeyRegistrationRequest.hpp"
#include "simulation/ScenarioArguments.hpp"
#include "simulation/ScenarioLineRegistry.hpp"

#include <chrono>

namespace quenby {
namespace {

using Arguments = ScenarioLineRegistry::Arguments;

ActivationModifierPreference parseModifier(const std::string& text) {
  if (text == "option") {
    return ActivationModifierPreference::option;
  }
  if (text == "control") {
    return ActivationModifierPreference::control;
  }
  throw ScenarioLineError{"\"" + text + "\" is not a modifier: option or control"};
}

int parseDigit(const std::string& text) {
  const std::int64_t digit = parseInteger(text);
  if (digit < 1 || digit > 9) {
    throw ScenarioLineError{"\"" + text + "\" is not a digit from 1 to 9"};
  }
  return static_cast<int>(digit);
}

// A hot-key signature as the system writes it: four characters read big-endian.
std::uint32_t parseSignature(const std::string& text) {
  if (text.size() != 4) {
    throw ScenarioLineError{"a signature has four characters, like QNBY"};
  }
  std::uint32_t signature = 0;
  for (const char character : text) {
    signature = (signature << 8U) | static_cast<unsigned char>(character);
  }
  return signature;
}

void hotKeyTakenLine(ScenarioContext& context, const Arguments& arguments) {
  expectArgumentCount(arguments, 3, 3, "hotkey-taken option|control DIGIT");
  context.world().hotKeys().taken.insert({parseModifier(arguments[1]), parseDigit(arguments[2])});
}

void systemShortcutLine(ScenarioContext& context, const Arguments& arguments) {
  expectArgumentCount(arguments, 3, 4, "system-shortcut option|control DIGIT [NAME]");
  context.world().hotKeys().systemShortcuts.push_back(
      {.modifier = parseModifier(arguments[1]),
       .digit = parseDigit(arguments[2]),
       .name = arguments.size() == 4 ? arguments[3] : std::string()});
}

char parseLetter(const AppRuntime& runtime, const std::string& text) {
  const auto letter = LetterMappingRecord::normalizedLetter(text);
  if (!letter) {
    throw ScenarioLineError{
        KeyboardMappingStoreError::invalidLetter(text).message(*runtime.platform().base.localizer)};
  }
  return *letter;
}

// Through the editor, as a person would: moving an application off another letter asks first,
// and the script's queued alert answer decides.
void assignLine(ScenarioContext& context, const Arguments& arguments) {
  expectArgumentCount(arguments, 3, 3, "assign LETTER PATH");
  const auto runtime = context.requireRuntime("assign");
  MappingEditorViewModel& editor = runtime->ui().mappingEditor();
  editor.assign(parseLetter(*runtime, arguments[1]), context.diskURL(arguments[2]));
  if (const auto& confirmation = editor.moveConfirmation()) {
    auto& answers = context.world().alertAnswers();
    const bool move = !answers.empty() && answers.front();
    if (!answers.empty()) {
      answers.pop_front();
    }
    context.recorder().emit(
        "alert", {{"message", confirmation->message}, {"answer", move ? "continue" : "cancel"}});
    if (move) {
      editor.confirmMove();
    } else {
      editor.cancelMove();
    }
  }
  if (!editor.errorText().empty()) {
    throw ScenarioLineError{editor.errorText()};
  }
}

void unassignLine(ScenarioContext& context, const Arguments& arguments) {
  expectArgumentCount(arguments, 2, 2, "unassign LETTER");
  const auto runtime = context.requireRuntime("unassign");
  MappingEditorViewModel& editor = runtime->ui().mappingEditor();
  editor.remove(parseLetter(*runtime, arguments[1]));
  if (!editor.errorText().empty()) {
    throw ScenarioLineError{editor.errorText()};
  }
}

void writeState(const ScenarioContext& context, AppRuntime* runtime,
                nlohmann::ordered_json& fields) {
  if (runtime == nullptr) {
    return;
  }
  const ShortcutsAssembly& shortcuts = runtime->shortcuts();
  const auto& health = shortcuts.optionDigits().health();
  fields["digits"] = OptionDigitHotKeyHealth::kindName(health.kind());
  auto letters = nlohmann::ordered_json::object();
  for (const auto& [letter, mapping] : shortcuts.mappingSnapshot().letterMappings) {
    letters[std::string(1, letter)] = {
        {"bundle", mapping.bundleIdentifier},
        {"path", context.world().scriptPath(mapping.lastKnownURL.path())},
        {"resolution", mapping.resolution.name()}};
  }
  fields["letters"] = std::move(letters);
  auto conflicts = nlohmann::ordered_json::array();
  const Localizer& localizer = *runtime->platform().base.localizer;
  for (const auto& conflict : shortcuts.optionDigits().systemShortcutConflicts()) {
    conflicts.push_back({{"digit", conflict.digit}, {"by", conflict.takenBy(localizer)}});
  }
  fields["conflicts"] = std::move(conflicts);
}

} // namespace

void registerSwitchingScenarioLines(ScenarioLineRegistry& registry) {
  registry.addLine("hotkey-taken", hotKeyTakenLine);
  registry.addLine("system-shortcut", systemShortcutLine);
  registry.addLine("hotkey", [](ScenarioContext& context, const Arguments& arguments) {
    expectArgumentCount(arguments, 2, 2, "hotkey DIGIT");
    const int digit = parseDigit(arguments[1]);
    context.requireHotKeys("hotkey").deliver(OptionDigitHotKeyRegistrationRequest::kSignature,
                                             static_cast<std::uint32_t>(digit));
  });
  registry.addLine("hotkey-event", [](ScenarioContext& context, const Arguments& arguments) {
    expectArgumentCount(arguments, 3, 3, "hotkey-event SIGNATURE ID");
    const std::int64_t identifier = parseInteger(arguments[2]);
    if (identifier < 0 || identifier > UINT32_MAX) {
      throw ScenarioLineError{"a hot-key id is a whole number from 0 to 4294967295"};
    }
    context.requireHotKeys("hotkey-event")
        .deliver(parseSignature(arguments[1]), static_cast<std::uint32_t>(identifier));
  });
  registry.addLine("assign", assignLine);
  registry.addLine("unassign", unassignLine);
  registry.addLine("open-fails", [](ScenarioContext& context, const Arguments& arguments) {
    expectArgumentCount(arguments, 2, 2, "open-fails PATH");
    // As the opener will print it: standardised, below the simulated disk.
    const FileURL bundle = context.diskURL(arguments[1]);
    context.world().workspace().failingOpens.insert(context.world().scriptPath(bundle.path()));
  });
  registry.addLine("open-latency", [](ScenarioContext& context, const Arguments& arguments) {
    expectArgumentCount(arguments, 2, 2, "open-latency MS");
    const std::int64_t milliseconds = parseInteger(arguments[1]);
    if (milliseconds < 0) {
      throw ScenarioLineError{"open-latency needs a duration of 0 ms or more"};
    }
    context.world().workspace().openLatency = std::chrono::milliseconds(milliseconds);
  });
  registry.addLine("frontmost", [](ScenarioContext& context, const Arguments& arguments) {
    expectArgumentCount(arguments, 2, 2, "frontmost BUNDLE_ID|none");
    SimulatedWorkspace& workspace = context.world().workspace();
    if (arguments[1] == "none") {
      workspace.frontmost.reset();
      return;
    }
    workspace.frontmost = arguments[1];
    workspace.launched(arguments[1]);
  });
  registry.addLine("fullscreen", [](ScenarioContext& context, const Arguments& arguments) {
    expectArgumentCount(arguments, 2, 2, "fullscreen BUNDLE_ID");
    context.world().workspace().fullScreen.insert(arguments[1]);
  });
  registry.addLine("running", [](ScenarioContext& context, const Arguments& arguments) {
    expectArgumentCount(arguments, 2, 2, "running BUNDLE_ID");
    context.world().workspace().launched(arguments[1]);
  });
  registry.addLine("terminated", [](ScenarioContext& context, const Arguments& arguments) {
    expectArgumentCount(arguments, 2, 2, "terminated BUNDLE_ID");
    context.world().workspace().terminated(arguments[1]);
  });
  registry.addStateFields(writeState);
}

} // namespace quenby
