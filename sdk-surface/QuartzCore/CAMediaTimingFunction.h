// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <Foundation/NSObject.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* CAMediaTimingFunctionName;
FOUNDATION_EXPORT CAMediaTimingFunctionName const kCAMediaTimingFunctionEaseInEaseOut;
FOUNDATION_EXPORT CAMediaTimingFunctionName const kCAMediaTimingFunctionEaseOut;

@interface CAMediaTimingFunction : NSObject
+ (instancetype)functionWithName:(CAMediaTimingFunctionName)name;
@end

NS_ASSUME_NONNULL_END
