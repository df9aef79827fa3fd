// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <Foundation/NSObjCRuntime.h>

NS_ASSUME_NONNULL_BEGIN

@class NSString;

// The current user's home folder (the container's, for a sandboxed application).
FOUNDATION_EXPORT NSString* NSHomeDirectory(void);

NS_ASSUME_NONNULL_END
