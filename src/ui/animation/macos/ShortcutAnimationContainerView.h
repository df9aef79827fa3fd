// Objective-C++: include only from .mm files.
#pragma once

#import <AppKit/AppKit.h>

NS_ASSUME_NONNULL_BEGIN

/// The panel's content view: layer-backed, its layer carrying the animation, so that scaling and
/// fading it moves everything drawn inside together. Main thread only.
@interface QBShortcutAnimationContainerView : NSView

/// Scales happen around the middle of the view rather than its bottom-left corner. Call before
/// adding a scale animation: AppKit may reset the layer's geometry when it lays the view out.
- (void)centreLayerAnchor;

@end

NS_ASSUME_NONNULL_END
