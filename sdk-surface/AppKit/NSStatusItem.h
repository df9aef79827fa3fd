// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSStatusBarButton.h>
#import <Foundation/NSObject.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

@class NSMenu;

typedef NSString* NSStatusItemAutosaveName;

@interface NSStatusItem : NSObject
// The menu shown when the item is clicked.
@property(nullable, strong) NSMenu* menu;
// macOS 10.10.
@property(nullable, readonly, strong) NSStatusBarButton* button;
// macOS 10.13: the key under which the system keeps the item's position across launches.
@property(null_resettable, copy) NSStatusItemAutosaveName autosaveName;
@end

NS_ASSUME_NONNULL_END
