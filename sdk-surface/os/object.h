// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <objc/NSObject.h>

// Under Objective-C with ARC, os objects (logs, dispatch queues) are Objective-C objects that
// ARC retains and releases.
#define OS_OBJECT_DECL(name)                                                                       \
  @protocol OS_                                                                                    \
  ##name<NSObject> @end                                                                            \
  typedef NSObject<OS_##name>* name##_t
#define OS_OBJECT_DECL_SUBCLASS(name, super)                                                       \
  @protocol OS_                                                                                    \
  ##name<OS_##super> @end                                                                          \
  typedef NSObject<OS_##name>* name##_t
