// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSMenu, NSMenuItem, NSString;

// Told of the menu's life; every method is optional.
@protocol NSMenuDelegate <NSObject>
@optional
// Sent just before the menu shows; items may still be changed.
- (void)menuWillOpen:(NSMenu*)menu;
@end

@interface NSMenu : NSObject
- (instancetype)initWithTitle:(NSString*)title;
- (void)addItem:(NSMenuItem*)newItem;
- (void)removeAllItems;
// When NO, each item's own `enabled` decides; when YES (the default) AppKit validates items.
@property BOOL autoenablesItems;
// Not retained.
@property(nullable, weak) id<NSMenuDelegate> delegate;
@end

NS_ASSUME_NONNULL_END
