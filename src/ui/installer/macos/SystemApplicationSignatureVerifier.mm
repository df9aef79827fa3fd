// A bundle's code signature on disk, through SecStaticCodeCreateWithPath and
// SecStaticCodeCheckValidityWithErrors.
//
// Threading: main thread only; synchronous. The check hashes every file of the bundle, which
// for this application takes a fraction of a second.
//
// Lifetime: the static code object (+1) and the error (+1) are released before returning.
//
// Guarantee: a signature holds only when every architecture, every nested piece of code and
// every sealed resource matches, under strict validation; no particular signer is required, so
// an ad hoc signed build verifies as well as a distributed one. Any failure comes back as the
// system's description of it.

#include "ui/installer/macos/SystemApplicationSignatureVerifier.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <Foundation/Foundation.h>
#include <Security/Security.h>

namespace quenby {
namespace {

std::string describe(OSStatus status, NSError* _Nullable error) {
  NSString* description = error != nil ? error.localizedDescription : nil;
  if (description == nil) {
    description = CFBridgingRelease(SecCopyErrorMessageString(status, nullptr));
  }
  auto text = description != nil ? utf8String(description) : std::nullopt;
  return text ? *text : "The code signature could not be checked (" + std::to_string(status) + ").";
}

} // namespace

std::optional<std::string>
SystemApplicationSignatureVerifier::verify(const std::string& bundlePath) {
  NSString* path = foundationString(bundlePath);
  if (path == nil) {
    return describe(errSecSuccess, nil);
  }
  NSURL* url = [NSURL fileURLWithPath:path isDirectory:YES];
  SecStaticCodeRef code = nullptr;
  OSStatus status = SecStaticCodeCreateWithPath((__bridge CFURLRef)url, kSecCSDefaultFlags, &code);
  if (status != errSecSuccess || code == nullptr) {
    return describe(status, nil);
  }
  const SecCSFlags flags = static_cast<SecCSFlags>(kSecCSCheckAllArchitectures |
                                                   kSecCSCheckNestedCode | kSecCSStrictValidate);
  CFErrorRef error = nullptr;
  status = SecStaticCodeCheckValidityWithErrors(code, flags, nullptr, &error);
  CFRelease(code);
  NSError* reported = CFBridgingRelease(error);
  if (status == errSecSuccess) {
    return std::nullopt;
  }
  return describe(status, reported);
}

} // namespace quenby
