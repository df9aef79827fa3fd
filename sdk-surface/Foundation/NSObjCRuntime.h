// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <objc/NSObject.h>
#import <objc/objc.h>
#include <stdint.h>

#ifdef __cplusplus
#define FOUNDATION_EXPORT extern "C"
#else
#define FOUNDATION_EXPORT extern
#endif

#define NS_ASSUME_NONNULL_BEGIN _Pragma("clang assume_nonnull begin")
#define NS_ASSUME_NONNULL_END _Pragma("clang assume_nonnull end")
#define NS_RETURNS_INNER_POINTER __attribute__((objc_returns_inner_pointer))
#define NS_VALID_UNTIL_END_OF_SCOPE __attribute__((objc_precise_lifetime))
#define NS_DESIGNATED_INITIALIZER __attribute__((objc_designated_initializer))
#define NS_UNAVAILABLE __attribute__((unavailable))

// Written here as plain C++ enumerations: a fixed underlying type, enumerators in scope. Option
// sets are the underlying integer type, so that combined flags need no cast.
#define NS_ENUM(_type, _name) enum _name : _type
#define NS_OPTIONS(_type, _name)                                                                   \
  _type _name;                                                                                     \
  enum : _type

// 64-bit platforms only.
typedef long NSInteger;
typedef unsigned long NSUInteger;

typedef struct _NSZone NSZone;
