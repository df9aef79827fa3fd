// The current keyboard layout's characters, through the text input sources and UCKeyTranslate.
//
// Threading: main thread only. The text input source calls trap off the main thread, and the
// selection-change notification is registered from, and so delivered on, the main thread.
//
// Lifetime: the current layout input source, and the ASCII-capable one that stands in for a
// layout without Latin letters, are each copied lazily, on the first key that needs it after the
// translator is made or after the user selects another input source, and kept (retained) until
// the next change or the translator's end: their layout bytes belong to them. The notification
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

namespace {

// One input source's layout, copied on first use and kept until the selection changes: its
// layout bytes belong to the source.
class CachedLayout {
public:
  using Copy = TISInputSourceRef _Nullable (*)();

  explicit CachedLayout(Copy copy) : copy_(copy) {}
  CachedLayout(const CachedLayout&) = delete;
  CachedLayout& operator=(const CachedLayout&) = delete;
  ~CachedLayout() { release(); }

  void release() {
    if (source_ != nullptr) {
      CFRelease(source_);
      source_ = nullptr;
    }
    layout_ = nullptr;
    copied_ = false;
  }

  const UCKeyboardLayout* layout() {
    if (copied_) {
      return layout_;
    }
    copied_ = true;
    source_ = copy_();
    if (source_ == nullptr) {
      return nullptr;
    }
    const auto data = static_cast<CFDataRef>(
        TISGetInputSourceProperty(source_, kTISPropertyUnicodeKeyLayoutData));
    if (data != nullptr) {
      layout_ = reinterpret_cast<const UCKeyboardLayout*>(CFDataGetBytePtr(data));
    }
    return layout_;
  }

private:
  Copy copy_;
  TISInputSourceRef source_ = nullptr;
  const UCKeyboardLayout* layout_ = nullptr;
  bool copied_ = false;
};

TypedKeyText translated(const UCKeyboardLayout* layout, std::uint16_t keyCode) {
  TypedKeyText text;
  if (layout == nullptr) {
    return text;
  }
  UInt32 deadKeyState = 0;
  UniCharCount length = 0;
  UniChar units[TypedKeyText::kCapacity] = {};
  const OSStatus status = UCKeyTranslate(layout, keyCode, kUCKeyActionDown, 0, LMGetKbdType(), 0,
                                         &deadKeyState, TypedKeyText::kCapacity, &length, units);
  if (status != noErr) {
    return text;
  }
  text.length = length < TypedKeyText::kCapacity ? length : TypedKeyText::kCapacity;
  for (std::size_t index = 0; index < text.length; ++index) {
    text.units[index] = static_cast<char16_t>(units[index]);
  }
  return text;
}

} // namespace

struct CurrentInputSourceCharacterTranslator::Storage {
  void refreshIfStale() {
    if (!*stale) {
      return;
    }
    *stale = false;
    current.release();
    asciiCapable.release();
  }

  CachedLayout current{&TISCopyCurrentKeyboardLayoutInputSource};
  CachedLayout asciiCapable{&TISCopyCurrentASCIICapableKeyboardLayoutInputSource};
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
  storage_->refreshIfStale();
  return translated(storage_->current.layout(), keyCode);
}

TypedKeyText
CurrentInputSourceCharacterTranslator::asciiCapableCharacter(std::uint16_t keyCode) const {
  storage_->refreshIfStale();
  return translated(storage_->asciiCapable.layout(), keyCode);
}

} // namespace quenby
