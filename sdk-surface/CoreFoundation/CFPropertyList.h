// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#include <CoreFoundation/CFBase.h>
#include <CoreFoundation/CFData.h>
#include <CoreFoundation/CFError.h>

#pragma clang assume_nonnull begin
CF_EXTERN_C_BEGIN

enum CFPropertyListFormat : CFIndex {
  kCFPropertyListOpenStepFormat = 1,
  kCFPropertyListXMLFormat_v1_0 = 100,
  kCFPropertyListBinaryFormat_v1_0 = 200
};

typedef CFOptionFlags CFPropertyListMutabilityOptions;
enum : CFPropertyListMutabilityOptions { kCFPropertyListImmutable = 0 };

// Create rule: the result is owned by the caller, as is the error when one is returned.
CF_RETURNS_RETAINED CFPropertyListRef _Nullable CFPropertyListCreateWithData(
    CFAllocatorRef _Nullable allocator, CFDataRef data, CFOptionFlags options,
    CFPropertyListFormat* _Nullable format, CFErrorRef _Nullable* _Nullable error);

CF_EXTERN_C_END
#pragma clang assume_nonnull end
