// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSLayoutConstraint.h>
#import <AppKit/NSUserInterfaceLayout.h>
#import <AppKit/NSView.h>
#import <Foundation/NSArray.h>
#import <Foundation/NSGeometry.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSStackView : NSView
+ (instancetype)stackViewWithViews:(NSArray<NSView*>*)views;
@property NSUserInterfaceLayoutOrientation orientation;
@property NSLayoutAttribute alignment;
@property NSEdgeInsets edgeInsets;
@property CGFloat spacing;
@property(readonly, copy) NSArray<__kindof NSView*>* arrangedSubviews;
- (void)addArrangedSubview:(NSView*)view;
// Leaves the view a subview: remove it from its superview as well to take it away.
- (void)removeArrangedSubview:(NSView*)view;
- (void)setCustomSpacing:(CGFloat)spacing afterView:(NSView*)view;
@end

NS_ASSUME_NONNULL_END
