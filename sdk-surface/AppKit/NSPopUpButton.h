// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSButton.h>
#import <Foundation/NSGeometry.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSPopUpButton : NSButton
- (instancetype)initWithFrame:(NSRect)buttonFrame pullsDown:(BOOL)flag;
- (void)addItemWithTitle:(NSString*)title;
- (void)removeAllItems;
- (void)selectItemAtIndex:(NSInteger)index;
// -1 when no item is selected.
@property(readonly) NSInteger indexOfSelectedItem;
@end

NS_ASSUME_NONNULL_END
