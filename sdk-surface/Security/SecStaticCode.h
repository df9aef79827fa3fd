// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <MacTypes.h>
#include <Security/CSCommon.h>

#pragma clang assume_nonnull begin
CF_EXTERN_C_BEGIN

// Validation flags for SecStaticCodeCheckValidity(WithErrors).
enum : uint32_t {
  kSecCSCheckAllArchitectures = 1 << 0,
  kSecCSCheckNestedCode = 1 << 3,
  kSecCSStrictValidate = 1 << 4,
};

// The code at a file URL (a bundle's folder or an executable); +1 in `staticCode`.
OSStatus
SecStaticCodeCreateWithPath(CFURLRef path, SecCSFlags flags,
                            SecStaticCodeRef _Nullable* _Nonnull CF_RETURNS_RETAINED staticCode);
// errSecSuccess when the signature holds (and the requirement, when given); otherwise a +1
// description in `errors` when it is not NULL.
OSStatus SecStaticCodeCheckValidityWithErrors(SecStaticCodeRef staticCode, SecCSFlags flags,
                                              SecRequirementRef _Nullable requirement,
                                              CFErrorRef _Nullable* _Nullable errors);

CF_EXTERN_C_END
#pragma clang assume_nonnull end
