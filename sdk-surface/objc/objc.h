// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#include <stdbool.h>

// Apple targets' compilers name the BOOL they use; elsewhere it follows the architecture as on a
// Mac: bool on arm64, signed char on x86_64.
#if defined(__OBJC_BOOL_IS_BOOL)
#if __OBJC_BOOL_IS_BOOL
typedef bool BOOL;
#else
typedef signed char BOOL;
#endif
#elif defined(__arm64__) || defined(__aarch64__)
typedef bool BOOL;
#else
typedef signed char BOOL;
#endif

#define YES __objc_yes
#define NO __objc_no

#ifndef nil
#define nil nullptr
#endif
