// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#include <os/object.h>
#include <stddef.h>
#include <stdint.h>

#pragma clang assume_nonnull begin
#ifdef __cplusplus
extern "C" {
#endif

OS_OBJECT_DECL(os_log);

typedef enum : uint8_t {
  OS_LOG_TYPE_DEFAULT = 0x00,
  OS_LOG_TYPE_INFO = 0x01,
  OS_LOG_TYPE_DEBUG = 0x02,
  OS_LOG_TYPE_ERROR = 0x10,
  OS_LOG_TYPE_FAULT = 0x11,
} os_log_type_t;

os_log_t os_log_create(const char* subsystem, const char* category);

// Stands in for the library call behind the macro below. The builtins are the compiler's own
// os_log support: the format must be a string literal and every argument must match its
// specifier, privacy annotations such as %{public}s included.
void quenby_sdk_surface_os_log(os_log_t log, os_log_type_t type, const char* format,
                               void* encodedArguments, size_t encodedSize);

#define os_log_with_type(log, type, format, ...)                                                   \
  __extension__({                                                                                  \
    uint8_t _os_log_arguments[__builtin_os_log_format_buffer_size(format, ##__VA_ARGS__)];         \
    quenby_sdk_surface_os_log((log), (type), format,                                               \
                              __builtin_os_log_format(_os_log_arguments, format, ##__VA_ARGS__),   \
                              sizeof(_os_log_arguments));                                          \
  })

#ifdef __cplusplus
}
#endif
#pragma clang assume_nonnull end
