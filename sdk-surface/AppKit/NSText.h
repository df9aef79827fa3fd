// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>

// Right and centre swap their raw values on Apple silicon; code uses the names only.
NS_ENUM(NSInteger, NSTextAlignment){
    NSTextAlignmentLeft = 0,      NSTextAlignmentRight = 1,   NSTextAlignmentCenter = 2,
    NSTextAlignmentJustified = 3, NSTextAlignmentNatural = 4,
};
