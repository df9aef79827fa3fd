// The Usage page's daily chart. Main thread only; the view model outlives the view.

#pragma once

#import <AppKit/AppKit.h>

namespace quenby {
class UsageSettingsViewModel;
} // namespace quenby

/// Draws the view model's chart geometry for its plot: bars in the categories' system colours,
/// the y axis's grid and labels, the dates and the legend.
@interface QNBUsageChartView : NSView

- (instancetype)initWithViewModel:(quenby::UsageSettingsViewModel&)viewModel
    NS_DESIGNATED_INITIALIZER;
- (instancetype)initWithFrame:(NSRect)frameRect NS_UNAVAILABLE;
- (instancetype)initWithCoder:(NSCoder*)coder NS_UNAVAILABLE;

@end
