#include "simulation/NarratingEventWriter.hpp"

#include <iomanip>
#include <ostream>
#include <sstream>
#include <vector>

namespace quenby {
namespace {

std::string text(const nlohmann::ordered_json& value) {
  return value.is_string() ? value.get<std::string>() : value.dump();
}

std::string field(const ScenarioEvent& event, const char* name) {
  const auto found = event.fields.find(name);
  return found == event.fields.end() ? std::string() : text(*found);
}

/// Continuation lines line up under the first line's text.
constexpr std::string_view kIndent = "\n           ";

std::string describeDock(const nlohmann::ordered_json& dock, std::string_view modifier) {
  std::string mapped;
  std::vector<std::string> unavailable;
  for (const auto& position : dock) {
    const std::string digit = std::string(modifier) + text(position.value("position", 0));
    if (position.value("state", "") == "mapped") {
      mapped.append(kIndent).append("  ").append(digit).append("  ");
      mapped.append(text(position.value("name", nlohmann::ordered_json())));
      const auto resolved = position.find("resolvedPath");
      mapped.append(resolved != position.end()
                        ? "  " + text(*resolved)
                        : "  (" + text(position.value("resolution", nlohmann::ordered_json())) +
                              ")");
    } else if (position.value("problem", "") != "emptyDockPosition") {
      mapped.append(kIndent).append("  ").append(digit).append("  ");
      mapped.append(text(position.value("message", nlohmann::ordered_json())));
    }
  }
  return mapped.empty() ? std::string(" no pinned application") : mapped;
}

std::string describeState(const ScenarioEvent& event) {
  std::string sentence = "State: the coordinator is " + field(event, "coordinator") + ".";
  const auto preferences = event.fields.find("preferences");
  if (preferences == event.fields.end() || !preferences->is_object()) {
    return sentence;
  }
  const bool control = preferences->value("activationModifier", "") == "control";
  const auto dock = event.fields.find("dock");
  if (dock != event.fields.end() && dock->is_array()) {
    sentence.append(kIndent).append("Dock:").append(describeDock(*dock, control ? "⌃" : "⌥"));
  }
  const auto letters = event.fields.find("letters");
  if (letters != event.fields.end() && letters->is_object() && !letters->empty()) {
    sentence.append(kIndent).append("Letters:");
    for (const auto& [letter, mapping] : letters->items()) {
      sentence.append(" ").append(control ? "⌃" : "⌥").append(letter).append(" ");
      sentence.append(text(mapping.value("path", nlohmann::ordered_json())));
      sentence.append(" (").append(text(mapping.value("resolution", nlohmann::ordered_json())));
      sentence.append(")");
    }
  }
  const auto usage = event.fields.find("usage");
  if (usage != event.fields.end() && usage->is_object()) {
    sentence.append(kIndent).append("Usage: ");
    sentence.append(text(usage->value("optionDigit", nlohmann::ordered_json())))
        .append(" by digit, ");
    sentence.append(text(usage->value("optionLetter", nlohmann::ordered_json())))
        .append(" by letter, ");
    sentence.append(text(usage->value("hud", nlohmann::ordered_json()))).append(" from the HUD.");
  }
  const auto hud = event.fields.find("hud");
  if (hud != event.fields.end() && hud->is_string()) {
    sentence.append(kIndent).append("HUD: ").append(hud->get<std::string>());
    sentence.append(event.fields.value("hudVisible", false) ? ", on screen." : ", hidden.");
  }
  sentence.append(kIndent).append("Preferences:");
  std::string_view separator = " ";
  for (const auto& [name, value] : preferences->items()) {
    sentence.append(separator).append(name).append("=").append(text(value));
    separator = ", ";
  }
  return sentence;
}

} // namespace

std::string NarratingEventWriter::sentence(const ScenarioEvent& event) {
  const std::string& name = event.name;
  if (name == "launched") {
    return event.fields.value("menuBarExtra", false)
               ? "Quenby finished launching; its icon is in the menu bar."
               : "Quenby finished launching inside a test host, so it shows no menu-bar icon.";
  }
  if (name == "terminated") {
    return "Quenby quit.";
  }
  if (name == "write") {
    const auto value = event.fields.find("value");
    if (value != event.fields.end() && value->is_object() && value->contains("base64")) {
      return "Saved the document " + field(event, "key") + ".";
    }
    return "Saved the setting " + field(event, "key") + " = " + field(event, "value") + ".";
  }
  if (name == "remove") {
    return "Removed the setting " + field(event, "key") + ".";
  }
  if (name == "hotkeys") {
    const auto registered = event.fields.find("registered");
    if (registered == event.fields.end() || !registered->is_array() || registered->empty()) {
      return "Unregistered the digit hot keys.";
    }
    const std::string modifier = field(event, "modifier") == "control" ? "⌃" : "⌥";
    std::string digits;
    for (const auto& digit : *registered) {
      digits.append(digits.empty() ? "" : " ").append(modifier).append(text(digit));
    }
    return "Registered the hot keys " + digits + ".";
  }
  if (name == "open") {
    return "Opening " + field(event, "path") + ".";
  }
  if (name == "opened") {
    const auto ok = event.fields.find("ok");
    const bool opened = ok != event.fields.end() && ok->is_boolean() && ok->get<bool>();
    return (opened ? "Opened " : "The workspace could not open ") + field(event, "path") + ".";
  }
  if (name == "hide") {
    const auto ok = event.fields.find("ok");
    const bool hidden = ok != event.fields.end() && ok->is_boolean() && ok->get<bool>();
    return hidden ? "Hid " + field(event, "bundle") + ", which was in front."
                  : field(event, "bundle") + " refused to hide.";
  }
  if (name == "log") {
    return "Logged an error: " + field(event, "message");
  }
  if (name == "failure") {
    return "Showed a one-time failure panel \"" + field(event, "title") +
           "\": " + field(event, "message");
  }
  if (name == "state") {
    return describeState(event);
  }
  if (name == "key") {
    const bool down = event.fields.value("down", false);
    const bool repeat = event.fields.value("repeat", false);
    const bool consumed = field(event, "disposition") == "consume";
    return std::string(repeat ? "Key repeat "
                       : down ? "Key down "
                              : "Key up ") +
           field(event, "code") +
           (consumed ? ": swallowed by Quenby." : ": passed on to the application in front.");
  }
  if (name == "hud") {
    if (!event.fields.value("visible", false)) {
      return "The HUD closed.";
    }
    return "The HUD opened at " + field(event, "frame") + ", opacity " + field(event, "alpha") +
           ", " + field(event, "appearance") + " appearance.";
  }
  if (name == "prompt") {
    return "macOS asked the user to grant " +
           std::string(field(event, "permission") == "accessibility" ? "Accessibility"
                                                                     : "Input Monitoring") +
           " access.";
  }
  if (name == "menu") {
    std::string items;
    const auto found = event.fields.find("items");
    if (found != event.fields.end() && found->is_array()) {
      for (const auto& item : *found) {
        items.append(kIndent).append("  ").append(text(item) == "-" ? "――――" : text(item));
      }
    }
    return std::string(field(event, "icon") == "attention" ? "The menu bar icon asks for attention"
                                                           : "The menu bar icon looks normal") +
           " (\"" + field(event, "label") + "\"); its menu reads:" + items;
  }
  if (name == "alert") {
    return "An alert asked \"" + field(event, "message") + "\"; the user chose " +
           (field(event, "answer") == "continue" ? "Continue." : "Cancel.");
  }
  if (name == "open-url") {
    return "Opened " + field(event, "url") + ".";
  }
  if (name == "animation") {
    return "The shortcut animation played \"" + field(event, "label") + "\" at " +
           field(event, "frame") + (event.fields.value("reduced", false) ? ", reduced." : ".");
  }
  if (name == "settings") {
    return "The Settings window came forward.";
  }
  if (name == "editor") {
    return "The mapping editor opened at the letter " + field(event, "letter") + ".";
  }
  if (name == "digit-info") {
    return "Explained digit " + field(event, "digit") + ": " + field(event, "message");
  }
  std::string sentence = name;
  for (const auto& [key, value] : event.fields.items()) {
    sentence.append(" ").append(key).append("=").append(text(value));
  }
  return sentence;
}

void NarratingEventWriter::emit(const ScenarioEvent& event) {
  std::ostringstream stamp;
  stamp << std::setw(5) << event.milliseconds << " ms  ";
  out_ << stamp.str() << sentence(event) << '\n';
  out_.flush();
}

void NarratingEventWriter::heading(std::string_view text) {
  out_ << text << '\n';
  out_.flush();
}

} // namespace quenby
