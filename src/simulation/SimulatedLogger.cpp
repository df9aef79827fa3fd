#include "simulation/SimulatedLogger.hpp"

namespace quenby {

void SimulatedLogger::log(LogLevel level, std::string_view category, std::string_view message) {
  if (level != LogLevel::error) {
    return;
  }
  recorder_.emit("log", {{"level", "error"}, {"category", category}, {"message", message}});
}

} // namespace quenby
