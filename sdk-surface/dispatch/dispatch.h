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
OS_OBJECT_DECL_SUBCLASS(dispatch_queue_attr, dispatch_object);

// The attribute of a queue that runs one block at a time, in submission order.
#define DISPATCH_QUEUE_SERIAL NULL

typedef void (^dispatch_block_t)(void);

dispatch_queue_main_t dispatch_get_main_queue(void);
// The label may be NULL; the queue is released by ARC with its last reference.
dispatch_queue_t dispatch_queue_create(const char* _Nullable label,
                                       dispatch_queue_attr_t _Nullable attr);
void dispatch_async(dispatch_queue_t queue, dispatch_block_t block);

#ifdef __cplusplus
}
#endif
#pragma clang assume_nonnull end
