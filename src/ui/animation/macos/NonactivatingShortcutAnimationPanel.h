// Objective-C++: include only from .mm files.
#pragma once

#import <AppKit/AppKit.h>

NS_ASSUME_NONNULL_BEGIN

/// The animation's window: a borderless panel that never becomes key or main, lets every click
/// through, stays up while the application is inactive and is no accessibility element. Main
/// thread only.
@interface QBNonactivatingShortcutAnimationPanel : NSPanel

- (instancetype)initWithContentSize:(NSSize)contentSize;

@end

NS_ASSUME_NONNULL_END
