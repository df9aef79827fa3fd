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
    return "Saved the setting " + field(event, "key") + " = " + field(event, "value") + ".";
  }
  if (name == "remove") {
    return "Removed the setting " + field(event, "key") + ".";
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
