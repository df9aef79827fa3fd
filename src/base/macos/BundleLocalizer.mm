// The main bundle's string tables. Any thread; holds no state, the main bundle lives as long as
// the process. Guarantees a readable text: a key missing from every table, or a text that cannot
// cross into Foundation, yields the English default, never the key.

#include "base/macos/BundleLocalizer.hpp"

#import "base/macos/FoundationPropertyList.h"

namespace quenby {

std::string BundleLocalizer::localized(const LocalizedText& text) const {
  @autoreleasepool {
    NSString* key = foundationString(text.key);
    NSString* english = foundationString(text.english);
    if (key == nil || english == nil) {
      return std::string(text.english);
    }
    NSString* translated = [NSBundle.mainBundle localizedStringForKey:key value:english table:nil];
    return utf8String(translated).value_or(std::string(text.english));
  }
}

} // namespace quenby
