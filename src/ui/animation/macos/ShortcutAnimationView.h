// Objective-C++: include only from .mm files.
#pragma once

#include "ui/animation/ShortcutAnimationViewModel.hpp"

#import <AppKit/AppKit.h>

NS_ASSUME_NONNULL_BEGIN

/// Draws the model: the application's icon centred near the top and the shortcut's label below
/// it in a dark capsule (alone in the middle when there is no icon). Drawn at its final size; the
/// container's layer does the scaling. Invisible to assistive technologies, like the whole
/// animation. Main thread only; the model must outlive the view.
@interface QBShortcutAnimationView : NSView

- (instancetype)initWithFrame:(NSRect)frame model:(const quenby::ShortcutAnimationViewModel&)model;

@end

NS_ASSUME_NONNULL_END
