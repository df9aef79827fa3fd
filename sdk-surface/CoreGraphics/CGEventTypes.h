// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#include <CoreFoundation/CFBase.h>
#include <stdint.h>

typedef struct CF_BRIDGED_TYPE(id) __CGEvent* CGEventRef;
typedef struct __CGEventTapProxy* CGEventTapProxy;

typedef uint64_t CGEventMask;
typedef uint16_t CGKeyCode;

// The enumerations below are distinct C++ types, as the SDK's fixed-type enums are: an integer
// passes only through an explicit conversion.

enum CGEventTapLocation : uint32_t {
  kCGHIDEventTap = 0,
  kCGSessionEventTap = 1,
  kCGAnnotatedSessionEventTap = 2
};

enum CGEventTapPlacement : uint32_t { kCGHeadInsertEventTap = 0, kCGTailAppendEventTap = 1 };

enum CGEventTapOptions : uint32_t { kCGEventTapOptionDefault = 0, kCGEventTapOptionListenOnly = 1 };

enum CGEventType : uint32_t {
  kCGEventKeyDown = 10,
  kCGEventKeyUp = 11,
  kCGEventFlagsChanged = 12,
  kCGEventTapDisabledByTimeout = 0xFFFFFFFE,
  kCGEventTapDisabledByUserInput = 0xFFFFFFFF,
};

enum CGEventField : uint32_t { kCGKeyboardEventAutorepeat = 8, kCGKeyboardEventKeycode = 9 };

// An options type: a plain integer in C++.
typedef uint64_t CGEventFlags;

enum CGEventSourceStateID : int32_t {
  kCGEventSourceStatePrivate = -1,
  kCGEventSourceStateCombinedSessionState = 0,
  kCGEventSourceStateHIDSystemState = 1,
};

// Runs on the run loop that the tap's source was added to. Returns the event to pass it on, or
// NULL to drop it.
typedef CGEventRef _Nullable (*CGEventTapCallBack)(CGEventTapProxy _Nonnull proxy, CGEventType type,
                                                   CGEventRef _Nonnull event,
                                                   void* _Nullable userInfo);
