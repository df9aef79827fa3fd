// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@interface UTType : NSObject <NSCopying>
@end

// Every application bundle ("com.apple.application-bundle").
FOUNDATION_EXPORT UTType* const UTTypeApplicationBundle;
// JSON text ("public.json").
FOUNDATION_EXPORT UTType* const UTTypeJSON;

NS_ASSUME_NONNULL_END
