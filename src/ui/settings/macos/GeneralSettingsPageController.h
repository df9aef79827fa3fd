// Objective-C++: include only from .mm files.
#pragma once

#import <AppKit/AppKit.h>

namespace quenby {
class GeneralSettingsViewModel;
} // namespace quenby

NS_ASSUME_NONNULL_BEGIN

/// The General page of the Settings window: draws the view model's content and hands every
/// choice, switch and button back to it. Main thread only; the view model outlives the
/// controller.
@interface QNBGeneralSettingsPageController : NSViewController

- (instancetype)initWithViewModel:(quenby::GeneralSettingsViewModel&)viewModel
    NS_DESIGNATED_INITIALIZER;
- (instancetype)initWithNibName:(nullable NSNibName)nibNameOrNil
                         bundle:(nullable NSBundle*)nibBundleOrNil NS_UNAVAILABLE;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_UNAVAILABLE;

@end

NS_ASSUME_NONNULL_END
