// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#include <CoreFoundation/CFBase.h>

CF_EXTERN_C_BEGIN

// Metadata attribute names (CFStringRef constants).
CF_EXPORT const CFStringRef kMDItemContentTypeTree;
CF_EXPORT const CFStringRef kMDItemCFBundleIdentifier;
CF_EXPORT const CFStringRef kMDItemPath;

CF_EXTERN_C_END
