// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#include <os/object.h>

#pragma clang assume_nonnull begin
#ifdef __cplusplus
extern "C" {
#endif

OS_OBJECT_DECL(dispatch_object);
OS_OBJECT_DECL_SUBCLASS(dispatch_queue, dispatch_object);
OS_OBJECT_DECL_SUBCLASS(dispatch_queue_serial, dispatch_queue);
OS_OBJECT_DECL_SUBCLASS(dispatch_queue_main, dispatch_queue_serial);

typedef void (^dispatch_block_t)(void);

dispatch_queue_main_t dispatch_get_main_queue(void);
void dispatch_async(dispatch_queue_t queue, dispatch_block_t block);

#ifdef __cplusplus
}
#endif
#pragma clang assume_nonnull end
