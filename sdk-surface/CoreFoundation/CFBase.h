// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
#define CF_EXTERN_C_BEGIN extern "C" {
#define CF_EXTERN_C_END }
#define CF_EXPORT extern "C"
#else
#define CF_EXTERN_C_BEGIN
#define CF_EXTERN_C_END
#define CF_EXPORT extern
#endif

#define CF_BRIDGED_TYPE(T) __attribute__((objc_bridge(T)))
#define CF_RETURNS_RETAINED __attribute__((cf_returns_retained))
#define CF_CONSUMED __attribute__((cf_consumed))

#pragma clang assume_nonnull begin
CF_EXTERN_C_BEGIN

// MacTypes
typedef unsigned char Boolean;

typedef long CFIndex;
typedef unsigned long CFTypeID;
typedef unsigned long CFOptionFlags;

typedef const void* CFTypeRef;
typedef CFTypeRef CFPropertyListRef;
typedef const struct CF_BRIDGED_TYPE(NSString) __CFString* CFStringRef;
typedef const struct CF_BRIDGED_TYPE(id) __CFAllocator* CFAllocatorRef;

// NULL: the current default allocator.
CF_EXPORT const CFAllocatorRef _Nullable kCFAllocatorDefault;

CFTypeID CFGetTypeID(CFTypeRef cf);
// Equality as the two objects' type defines it: element by element for collections.
Boolean CFEqual(CFTypeRef cf1, CFTypeRef cf2);
// Ends one reference obtained from a Create or Copy function.
void CFRelease(CFTypeRef cf);

CF_EXTERN_C_END
#pragma clang assume_nonnull end
