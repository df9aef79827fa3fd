// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/NSApplication.h>
#import <AppKit/NSWindow.h>

NS_ASSUME_NONNULL_BEGIN

@class NSURL, UTType;

@interface NSSavePanel : NSWindow
+ (NSSavePanel*)savePanel;
@property(nullable, readonly, copy) NSURL* URL;
@property(nullable, copy) NSURL* directoryURL;
@property(copy) NSArray<UTType*>* allowedContentTypes;
@property(copy) NSString* nameFieldStringValue;
@property BOOL treatsFilePackagesAsDirectories;
// Runs the panel without blocking; the handler gets NSModalResponseOK or NSModalResponseCancel.
- (void)beginWithCompletionHandler:(void (^)(NSModalResponse result))handler;
@end

NS_ASSUME_NONNULL_END
