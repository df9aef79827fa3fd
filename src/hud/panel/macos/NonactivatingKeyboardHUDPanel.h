// Objective-C++: include only from .mm files.
#pragma once

#include "hud/panel/KeyboardHUDPanelConfiguration.hpp"
#include "hud/panel/KeyboardHUDPanelMaking.hpp"
#include "hud/view/KeyboardHUDViewModel.hpp"

#import <AppKit/AppKit.h>

NS_ASSUME_NONNULL_BEGIN

/// The HUD's window: a panel that never becomes key or main, so the front application keeps
/// the keyboard, and that turns left-button clicks on its keys into key clicks. Main thread
/// only. The model must outlive the panel.
@interface QBNonactivatingKeyboardHUDPanel : NSPanel

- (instancetype)initWithConfiguration:(const quenby::KeyboardHUDPanelConfiguration&)configuration
                                model:(const quenby::KeyboardHUDViewModel&)model;

/// Receives each key pressed and released with the left button; empty leaves every event to
/// the content view.
- (void)setHUDKeyClickHandler:(quenby::KeyboardHUDPanelMaking::KeyClickHandler)handler;
/// Forgets a press in progress.
- (void)forgetPressedKey;

@end

NS_ASSUME_NONNULL_END
