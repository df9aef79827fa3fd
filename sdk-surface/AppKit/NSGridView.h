// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSView.h>
#import <Foundation/NSArray.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSInteger, NSGridCellPlacement) {
  NSGridCellPlacementInherited = 0,
  NSGridCellPlacementNone,
  NSGridCellPlacementLeading,
  NSGridCellPlacementTop = NSGridCellPlacementLeading,
  NSGridCellPlacementTrailing,
  NSGridCellPlacementBottom = NSGridCellPlacementTrailing,
  NSGridCellPlacementCenter,
  NSGridCellPlacementFill,
};

typedef NS_ENUM(NSInteger, NSGridRowAlignment) {
  NSGridRowAlignmentInherited = 0,
  NSGridRowAlignmentNone,
  NSGridRowAlignmentFirstBaseline,
  NSGridRowAlignmentLastBaseline,
};

@interface NSGridColumn : NSObject
@property NSGridCellPlacement xPlacement;
@end

// macOS 10.12.
@interface NSGridView : NSView
// Rows of views, the first array being the top row.
+ (instancetype)gridViewWithViews:(NSArray<NSArray<NSView*>*>*)rows;
- (NSGridColumn*)columnAtIndex:(NSInteger)index;
@property NSGridRowAlignment rowAlignment;
@property CGFloat rowSpacing;
@property CGFloat columnSpacing;
@end

NS_ASSUME_NONNULL_END
