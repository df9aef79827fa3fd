#pragma once

#include <string_view>

namespace quenby {

enum class LogLevel { debug, info, error };

/// The system log. `category` names the component ("Preferences", "Dock", …).
class Logger {
public:
  virtual ~Logger() = default;
  virtual void log(LogLevel level, std::string_view category, std::string_view message) = 0;
};

/// The inert logger: drops every line.
class NullLogger final : public Logger {
public:
  void log(LogLevel, std::string_view, std::string_view) override {}
};

} // namespace quenby
