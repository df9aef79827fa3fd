// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSControl.h>
#import <AppKit/NSTableColumn.h>
#import <Foundation/NSNotification.h>

NS_ASSUME_NONNULL_BEGIN

@class NSIndexSet, NSTableHeaderView, NSTableView;

@protocol NSTableViewDataSource <NSObject>
@optional
- (NSInteger)numberOfRowsInTableView:(NSTableView*)tableView;
@end

@protocol NSTableViewDelegate <NSObject>
@optional
// A view-based table asks for each cell's view; nil leaves the cell empty.
- (nullable NSView*)tableView:(NSTableView*)tableView
           viewForTableColumn:(nullable NSTableColumn*)tableColumn
                          row:(NSInteger)row;
- (void)tableViewSelectionDidChange:(NSNotification*)notification;
@end

@interface NSTableView : NSControl
- (void)addTableColumn:(NSTableColumn*)tableColumn;
// Not retained.
@property(nullable, weak) id<NSTableViewDataSource> dataSource;
@property(nullable, weak) id<NSTableViewDelegate> delegate;
@property(nullable, strong) NSTableHeaderView* headerView;
@property CGFloat rowHeight;
@property BOOL usesAlternatingRowBackgroundColors;
@property BOOL allowsEmptySelection;
@property(nullable) SEL doubleAction;
@property(readonly) NSInteger selectedRow;
- (void)reloadData;
- (void)selectRowIndexes:(NSIndexSet*)indexes byExtendingSelection:(BOOL)extend;
- (void)scrollRowToVisible:(NSInteger)row;
@end

NS_ASSUME_NONNULL_END
