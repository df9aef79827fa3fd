// Objective-C++: include only from .mm files.
#pragma once

#include "shortcuts/running/PreparedApplicationIcon.hpp"

#import <AppKit/AppKit.h>

NS_ASSUME_NONNULL_BEGIN

namespace quenby {

/// The image of a prepared icon at its pixel size in points, or nil when its bytes do not make
/// one (a PNG that does not decode, pixel rows shorter than they claim).
NSImage* _Nullable makePreparedApplicationIconImage(const PreparedApplicationIcon& icon);

} // namespace quenby

NS_ASSUME_NONNULL_END
