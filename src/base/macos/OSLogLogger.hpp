#pragma once

#include "base/Logger.hpp"

#include <memory>

namespace quenby {

/// The unified system log: subsystem the main bundle's identifier ("com.brimfold.Quenby" when it
/// has none), one log handle per category, made on first use and kept. Messages are public (the
/// core never logs personal data). Main thread only: the handle cache has no lock.
class OSLogLogger final : public Logger {
public:
  OSLogLogger();
  OSLogLogger(const OSLogLogger&) = delete;
  OSLogLogger& operator=(const OSLogLogger&) = delete;
  ~OSLogLogger() override;

  void log(LogLevel level, std::string_view category, std::string_view message) override;

private:
  struct Handles;
  std::unique_ptr<Handles> handles_;
};

} // namespace quenby
