// Objective-C++: include only from .mm files.
#pragma once

#include "app/AppSettingsCommandBridge.hpp"

#import <AppKit/AppKit.h>

NS_ASSUME_NONNULL_BEGIN

/// The application delegate. It only converts AppKit's callbacks into calls on the portable
/// launch controller, which owns the coordinator. NSApplication holds its delegate weakly: the
/// creator keeps it alive for the whole process.
@interface QuenbyAppDelegate : NSObject <NSApplicationDelegate>

/// The application menu's Settings command, titled in the user's language. It reaches the
/// coordinator only between the end of launching and termination.
- (quenby::AppSettingsCommandBridge)settingsCommand;

/// The action of the application menu's Settings item.
- (void)showSettings:(nullable id)sender;

@end

NS_ASSUME_NONNULL_END
