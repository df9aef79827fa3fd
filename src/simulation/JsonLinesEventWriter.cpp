#include "simulation/JsonLinesEventWriter.hpp"

#include <ostream>

namespace quenby {

std::string JsonLinesEventWriter::format(const ScenarioEvent& event) {
  nlohmann::ordered_json line = nlohmann::ordered_json::object();
  line["t"] = event.milliseconds;
  line["event"] = event.name;
  for (const auto& [key, value] : event.fields.items()) {
    line[key] = value;
  }
  return line.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}

void JsonLinesEventWriter::emit(const ScenarioEvent& event) {
  out_ << format(event) << '\n';
  out_.flush();
}

} // namespace quenby
