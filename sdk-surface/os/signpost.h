// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#include <os/log.h>
#include <stdint.h>

#pragma clang assume_nonnull begin
#ifdef __cplusplus
extern "C" {
#endif

typedef uint64_t os_signpost_id_t;
#define OS_SIGNPOST_ID_NULL ((os_signpost_id_t)0)
#define OS_SIGNPOST_ID_INVALID ((os_signpost_id_t)~0)

typedef enum : uint8_t {
  OS_SIGNPOST_EVENT = 0x00,
  OS_SIGNPOST_INTERVAL_BEGIN = 0x01,
  OS_SIGNPOST_INTERVAL_END = 0x02,
} os_signpost_type_t;

// macOS 10.14: a fresh identifier, unique within the log handle.
os_signpost_id_t os_signpost_id_generate(os_log_t log);

// Stands in for the library call behind the macros below. As in Apple's macros, the name must
// be a string literal, and so must the optional format, whose arguments the compiler checks.
void quenby_sdk_surface_os_signpost(os_log_t log, os_signpost_type_t type, os_signpost_id_t spid,
                                    const char* name, void* encodedArguments, size_t encodedSize);

#define quenby_sdk_surface_signpost_emit(type, log, spid, name, ...)                               \
  __extension__({                                                                                  \
    const char* _os_signpost_name = "" name "";                                                    \
    uint8_t _os_signpost_arguments[__builtin_os_log_format_buffer_size("" __VA_ARGS__)];           \
    quenby_sdk_surface_os_signpost(                                                                \
        (log), (type), (spid), _os_signpost_name,                                                  \
        __builtin_os_log_format(_os_signpost_arguments, "" __VA_ARGS__),                           \
        sizeof(_os_signpost_arguments));                                                           \
  })

#define os_signpost_event_emit(log, event_id, name, ...)                                           \
  quenby_sdk_surface_signpost_emit(OS_SIGNPOST_EVENT, log, event_id, name, ##__VA_ARGS__)
#define os_signpost_interval_begin(log, interval_id, name, ...)                                    \
  quenby_sdk_surface_signpost_emit(OS_SIGNPOST_INTERVAL_BEGIN, log, interval_id, name,             \
                                   ##__VA_ARGS__)
#define os_signpost_interval_end(log, interval_id, name, ...)                                      \
  quenby_sdk_surface_signpost_emit(OS_SIGNPOST_INTERVAL_END, log, interval_id, name, ##__VA_ARGS__)

#ifdef __cplusplus
}
#endif
#pragma clang assume_nonnull end
