// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <CoreGraphics/CGBase.h>

NS_ASSUME_NONNULL_BEGIN

@class NSString;

typedef CGFloat NSFontWeight;
APPKIT_EXTERN const NSFontWeight NSFontWeightRegular;
APPKIT_EXTERN const NSFontWeight NSFontWeightMedium;
APPKIT_EXTERN const NSFontWeight NSFontWeightSemibold;

typedef NSString* NSFontTextStyle;
APPKIT_EXTERN const NSFontTextStyle NSFontTextStyleHeadline;
APPKIT_EXTERN const NSFontTextStyle NSFontTextStyleCallout;
APPKIT_EXTERN const NSFontTextStyle NSFontTextStyleCaption1;

typedef NSString* NSFontTextStyleOptionKey;

NS_ASSUME_NONNULL_END
