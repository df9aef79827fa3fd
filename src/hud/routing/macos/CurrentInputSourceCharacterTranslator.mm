// The current keyboard layout's characters, through the text input sources and UCKeyTranslate.
//
// Threading: main thread only. The text input source calls trap off the main thread, and the
// selection-change notification is registered from, and so delivered on, the main thread.
//
// Lifetime: the current layout input source is copied lazily, on the first key after the
// translator is made or after the user selects another input source, and kept (retained) until
// the next change or the translator's end: its layout bytes belong to it. The notification
// observer reaches the storage weakly and is removed before the storage goes.
//
// Guarantee: each key is translated with no modifier, as a key-down, for the hardware keyboard
// type, without dead-key state, into at most eight UTF-16 units, which are handed on as they are;
// a failed call, a missing layout or an empty result types nothing. Deciding what counts as a
// letter is the core's.

#include "hud/routing/macos/CurrentInputSourceCharacterTranslator.hpp"

#import <Carbon/Carbon.h>
#import <Foundation/Foundation.h>
#include <memory>

namespace quenby {

struct CurrentInputSourceCharacterTranslator::Storage {
  ~Storage() { release(); }

  void release() {
    if (source != nullptr) {
      CFRelease(source);
      source = nullptr;
    }
    layout = nullptr;
  }
  void refreshIfStale() {
    if (!*stale) {
      return;
    }
    *stale = false;
    release();
    source = TISCopyCurrentKeyboardLayoutInputSource();
    if (source == nullptr) {
      return;
    }
    const auto data =
        static_cast<CFDataRef>(TISGetInputSourceProperty(source, kTISPropertyUnicodeKeyLayoutData));
    if (data != nullptr) {
      layout = reinterpret_cast<const UCKeyboardLayout*>(CFDataGetBytePtr(data));
    }
  }

  TISInputSourceRef source = nullptr;
  const UCKeyboardLayout* layout = nullptr;
  // Shared with the notification observer, which only ever sets it.
  std::shared_ptr<bool> stale = std::make_shared<bool>(true);
  id observer = nil;
};

} // namespace quenby

@interface QuenbyInputSourceObserver : NSObject
- (instancetype)initWithStaleFlag:(std::weak_ptr<bool>)stale;
- (void)selectionChanged:(NSNotification*)notification;
@end

@implementation QuenbyInputSourceObserver {
  std::weak_ptr<bool> _stale;
}

- (instancetype)initWithStaleFlag:(std::weak_ptr<bool>)stale {
  self = [super init];
  if (self != nil) {
    _stale = std::move(stale);
  }
  return self;
}

- (void)selectionChanged:(NSNotification*)notification {
  if (auto stale = _stale.lock()) {
    *stale = true;
  }
}

@end

namespace quenby {

namespace {

NSString* selectionChangedName() {
  return (__bridge NSString*)kTISNotifySelectedKeyboardInputSourceChanged;
}

} // namespace

CurrentInputSourceCharacterTranslator::CurrentInputSourceCharacterTranslator()
    : storage_(std::make_unique<Storage>()) {
  QuenbyInputSourceObserver* observer =
      [[QuenbyInputSourceObserver alloc] initWithStaleFlag:storage_->stale];
  // An accessory application is almost never active: a suspended delivery would leave the old
  // layout in use until some window of ours was activated.
  [[NSDistributedNotificationCenter defaultCenter]
             addObserver:observer
                selector:@selector(selectionChanged:)
                    name:selectionChangedName()
                  object:nil
      suspensionBehavior:NSNotificationSuspensionBehaviorDeliverImmediately];
  storage_->observer = observer;
}

CurrentInputSourceCharacterTranslator::~CurrentInputSourceCharacterTranslator() {
  [[NSDistributedNotificationCenter defaultCenter] removeObserver:storage_->observer
                                                             name:selectionChangedName()
                                                           object:nil];
}

TypedKeyText CurrentInputSourceCharacterTranslator::character(std::uint16_t keyCode) const {
  Storage& storage = *storage_;
  TypedKeyText text;
  storage.refreshIfStale();
  if (storage.layout == nullptr) {
    return text;
  }
  UInt32 deadKeyState = 0;
  UniCharCount length = 0;
  UniChar units[TypedKeyText::kCapacity] = {};
  const OSStatus status =
      UCKeyTranslate(storage.layout, keyCode, kUCKeyActionDown, 0, LMGetKbdType(), 0, &deadKeyState,
                     TypedKeyText::kCapacity, &length, units);
  if (status != noErr) {
    return text;
  }
  for (UniCharCount index = 0; index < length && index < TypedKeyText::kCapacity; ++index) {
    text.units[index] = static_cast<char16_t>(units[index]);
  }
  text.length = length < TypedKeyText::kCapacity ? length : TypedKeyText::kCapacity;
  return text;
}

} // namespace quenby
