// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSControl.h>
#import <Foundation/NSArray.h>

NS_ASSUME_NONNULL_BEGIN

NS_ENUM(NSUInteger, NSSegmentSwitchTracking){
    NSSegmentSwitchTrackingSelectOne = 0,
    NSSegmentSwitchTrackingSelectAny = 1,
    NSSegmentSwitchTrackingMomentary = 2,
};

@interface NSSegmentedControl : NSControl
// macOS 10.12.
+ (instancetype)segmentedControlWithLabels:(NSArray<NSString*>*)labels
                              trackingMode:(NSSegmentSwitchTracking)trackingMode
                                    target:(nullable id)target
                                    action:(nullable SEL)action;
// -1 when none is selected.
@property NSInteger selectedSegment;
@end

NS_ASSUME_NONNULL_END
