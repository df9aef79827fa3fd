// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <UniformTypeIdentifiers/UTType.h>
