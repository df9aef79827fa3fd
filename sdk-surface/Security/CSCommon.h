// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <stdint.h>

typedef uint32_t SecCSFlags;
enum : SecCSFlags { kSecCSDefaultFlags = 0 };

// Code on disk (a bundle or a binary), and a code requirement.
typedef struct CF_BRIDGED_TYPE(id) __SecCode const* SecStaticCodeRef;
typedef struct CF_BRIDGED_TYPE(id) __SecRequirement* SecRequirementRef;
