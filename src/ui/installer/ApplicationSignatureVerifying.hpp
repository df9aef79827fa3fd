#pragma once

#include <optional>
#include <string>

namespace quenby {

/// Checks a bundle's code signature on disk: every architecture, nested code and resources, so
/// that a copy damaged on the way is never launched. Main thread only.
class ApplicationSignatureVerifying {
public:
  virtual ~ApplicationSignatureVerifying() = default;
  /// The system's description of what is wrong, or nothing when the signature holds.
  [[nodiscard]] virtual std::optional<std::string> verify(const std::string& bundlePath) = 0;
};

/// Can check nothing, so it vouches for nothing.
class InertApplicationSignatureVerifier final : public ApplicationSignatureVerifying {
public:
  [[nodiscard]] std::optional<std::string> verify(const std::string&) override {
    return "Code signatures cannot be checked here.";
  }
};

} // namespace quenby
