// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#include <MacTypes.h>

#ifdef __cplusplus
extern "C" {
#endif

// The 'uchr' keyboard layout data; opaque here.
typedef struct UCKeyboardLayout UCKeyboardLayout;

enum { kUCKeyActionDown = 0, kUCKeyActionUp = 1, kUCKeyActionAutoKey = 2, kUCKeyActionDisplay = 3 };
enum { kUCKeyTranslateNoDeadKeysBit = 0 };

OSStatus UCKeyTranslate(const UCKeyboardLayout* keyLayoutPtr, UInt16 virtualKeyCode,
                        UInt16 keyAction, UInt32 modifierKeyState, UInt32 keyboardType,
                        OptionBits keyTranslateOptions, UInt32* deadKeyState,
                        UniCharCount maxStringLength, UniCharCount* actualStringLength,
                        UniChar unicodeString[]);

#ifdef __cplusplus
}
#endif
