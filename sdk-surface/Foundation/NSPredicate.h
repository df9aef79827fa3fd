// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSString;

@interface NSPredicate : NSObject <NSCopying>
// %K substitutes a key path, %@ an object.
+ (NSPredicate*)predicateWithFormat:(NSString*)predicateFormat, ...;
@end

NS_ASSUME_NONNULL_END
