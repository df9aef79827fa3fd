// The Usage page of the Settings window: totals, the daily chart, the application rows and the
// reset. Main thread only; the view model outlives the controller.

#pragma once

#import <AppKit/AppKit.h>

namespace quenby {
class UsageSettingsViewModel;
} // namespace quenby

@interface QNBUsageSettingsPageController : NSViewController

- (instancetype)initWithViewModel:(quenby::UsageSettingsViewModel&)viewModel
    NS_DESIGNATED_INITIALIZER;
- (instancetype)initWithNibName:(NSNibName)nibNameOrNil
                         bundle:(NSBundle*)nibBundleOrNil NS_UNAVAILABLE;
- (instancetype)initWithCoder:(NSCoder*)coder NS_UNAVAILABLE;

@end
