// Carbon event hot keys behind the portable digit-shortcut registrar.
//
// Threading: main thread only. Registration, removal and the event handler all run on the main
// thread (the handler is installed on the application event target, which the main run loop
// dispatches).
//
// Lifetime: the handler's user data is a handler registration that this backend owns; the
// handler is removed from Carbon before that registration is destroyed, explicitly or in the
// destructor, so Carbon never calls back into freed memory. The press handler it forwards to is
// the registrar's weak handle, so a press after the registrar is gone does nothing.
//
// Guarantee: a press is claimed (noErr) only when it carries our signature and an id 1–9; any
// other hot-key event is left to other handlers (eventNotHandledErr). A success status that
// hands back no reference is reported as -50, never as success. Every registration is undone
// once, and whatever is left at teardown is undone then.

#include "shortcuts/hotkeys/macos/CarbonOptionDigitHotKeyBackend.hpp"

#include "shortcuts/hotkeys/OptionDigitHotKeyRegistrationRequest.hpp"

#import <Carbon/Carbon.h>
#include <array>
#include <utility>

namespace quenby {
namespace {

struct HandlerRegistration {
  OptionDigitHotKeyBackend::PressHandler callback;
  EventHandlerRef reference = nullptr;
};

OSStatus handleHotKeyEvent(EventHandlerCallRef, EventRef event, void* userData) {
  if (event == nullptr || userData == nullptr) {
    return eventNotHandledErr;
  }
  EventHotKeyID identifier{};
  const OSStatus status = GetEventParameter(event, kEventParamDirectObject, typeEventHotKeyID,
                                            nullptr, sizeof(identifier), nullptr, &identifier);
  if (status != noErr) {
    return eventNotHandledErr;
  }
  const auto digit =
      OptionDigitHotKeyRegistrationRequest::digitOfPress(identifier.signature, identifier.id);
  if (!digit) {
    return eventNotHandledErr;
  }
  auto* registration = static_cast<HandlerRegistration*>(userData);
  if (registration->callback) {
    registration->callback(*digit);
  }
  return noErr;
}

} // namespace

struct CarbonOptionDigitHotKeyBackend::Storage {
  std::unique_ptr<HandlerRegistration> handler;
  /// Indexed by identifier; only 1–9 are used.
  std::array<EventHotKeyRef, 10> hotKeys{};
};

CarbonOptionDigitHotKeyBackend::CarbonOptionDigitHotKeyBackend()
    : storage_(std::make_unique<Storage>()) {}

CarbonOptionDigitHotKeyBackend::~CarbonOptionDigitHotKeyBackend() {
  for (std::uint32_t identifier = 0; identifier < storage_->hotKeys.size(); ++identifier) {
    unregisterHotKey(identifier);
  }
  removeHandler();
}

std::int32_t CarbonOptionDigitHotKeyBackend::installHandler(PressHandler handler) {
  removeHandler();
  auto registration = std::make_unique<HandlerRegistration>();
  registration->callback = std::move(handler);
  const EventTypeSpec pressed{kEventClassKeyboard, kEventHotKeyPressed};
  EventHandlerRef reference = nullptr;
  const OSStatus status =
      InstallEventHandler(GetApplicationEventTarget(), NewEventHandlerUPP(handleHotKeyEvent), 1,
                          &pressed, registration.get(), &reference);
  if (status != noErr) {
    return status;
  }
  if (reference == nullptr) {
    return kMissingReferenceStatus;
  }
  registration->reference = reference;
  storage_->handler = std::move(registration);
  return noErr;
}

void CarbonOptionDigitHotKeyBackend::removeHandler() {
  if (!storage_->handler) {
    return;
  }
  RemoveEventHandler(storage_->handler->reference);
  storage_->handler.reset();
}

std::int32_t CarbonOptionDigitHotKeyBackend::registerHotKey(std::uint32_t keyCode,
                                                            std::uint32_t modifierFlags,
                                                            std::uint32_t identifier) {
  if (identifier >= storage_->hotKeys.size()) {
    return kMissingReferenceStatus;
  }
  unregisterHotKey(identifier);
  const EventHotKeyID hotKeyID{OptionDigitHotKeyRegistrationRequest::kSignature, identifier};
  EventHotKeyRef reference = nullptr;
  const OSStatus status = RegisterEventHotKey(keyCode, modifierFlags, hotKeyID,
                                              GetApplicationEventTarget(), 0, &reference);
  if (status != noErr) {
    return status;
  }
  if (reference == nullptr) {
    return kMissingReferenceStatus;
  }
  storage_->hotKeys[identifier] = reference;
  return noErr;
}

void CarbonOptionDigitHotKeyBackend::unregisterHotKey(std::uint32_t identifier) {
  if (identifier >= storage_->hotKeys.size() || storage_->hotKeys[identifier] == nullptr) {
    return;
  }
  UnregisterEventHotKey(storage_->hotKeys[identifier]);
  storage_->hotKeys[identifier] = nullptr;
}

} // namespace quenby
