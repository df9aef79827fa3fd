// os_log behind the core's logger. Main thread only (the category cache has no lock). The log
// handles are kept for the logger's lifetime; os_log itself never frees them anyway. Messages are
// logged public: they carry identifiers and paths the user needs to read in Console, never typed
// text.

#include "base/macos/OSLogLogger.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <Foundation/Foundation.h>
#include <map>
#include <os/log.h>
#include <string>

namespace quenby {

namespace {
constexpr const char* kFallbackSubsystem = "com.brimfold.Quenby";

os_log_type_t logType(LogLevel level) {
  switch (level) {
  case LogLevel::debug:
    return OS_LOG_TYPE_DEBUG;
  case LogLevel::info:
    return OS_LOG_TYPE_INFO;
  case LogLevel::error:
    return OS_LOG_TYPE_ERROR;
  }
  return OS_LOG_TYPE_DEFAULT;
}
} // namespace

struct OSLogLogger::Handles {
  std::string subsystem;
  std::map<std::string, os_log_t, std::less<>> byCategory;
};

OSLogLogger::OSLogLogger() : handles_(std::make_unique<Handles>()) {
  @autoreleasepool {
    NSString* identifier = NSBundle.mainBundle.bundleIdentifier;
    handles_->subsystem = identifier != nil ? utf8String(identifier).value_or(kFallbackSubsystem)
                                            : kFallbackSubsystem;
  }
}

OSLogLogger::~OSLogLogger() = default;

void OSLogLogger::log(LogLevel level, std::string_view category, std::string_view message) {
  auto found = handles_->byCategory.find(category);
  if (found == handles_->byCategory.end()) {
    const std::string name(category);
    found =
        handles_->byCategory.emplace(name, os_log_create(handles_->subsystem.c_str(), name.c_str()))
            .first;
  }
  const std::string text(message);
  os_log_with_type(found->second, logType(level), "%{public}s", text.c_str());
}

} // namespace quenby
