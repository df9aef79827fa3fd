// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/NSTextField.h>

NS_ASSUME_NONNULL_BEGIN

// Sends its action as the person types (after a short pause) and when the search is cleared.
@interface NSSearchField : NSTextField
@end

NS_ASSUME_NONNULL_END
