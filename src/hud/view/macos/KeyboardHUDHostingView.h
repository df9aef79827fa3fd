// Objective-C++: include only from .mm files.
#pragma once

#include "hud/view/KeyboardHUDViewModel.hpp"

#import <AppKit/AppKit.h>

NS_ASSUME_NONNULL_BEGIN

/// The HUD's content view: draws the view model with the layout's frames and redraws when the
/// model says it changed. Main thread only. The model must outlive the view; the view observes
/// it from initialisation until deallocation. Coordinates are flipped (origin top left), as the
/// layout's are.
@interface QBKeyboardHUDHostingView : NSView

- (instancetype)initWithModel:(quenby::KeyboardHUDViewModel&)model
      acceptsFirstMouseEvents:(BOOL)acceptsFirstMouseEvents;

/// Answers the first-mouse question, so a click acts although the application is not active.
@property(nonatomic, readonly) BOOL acceptsFirstMouseEvents;

@end

NS_ASSUME_NONNULL_END
