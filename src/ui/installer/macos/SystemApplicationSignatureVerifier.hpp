#pragma once

#include "ui/installer/ApplicationSignatureVerifying.hpp"

namespace quenby {

/// The Security framework's static code check. Main thread only; no state.
class SystemApplicationSignatureVerifier final : public ApplicationSignatureVerifying {
public:
  [[nodiscard]] std::optional<std::string> verify(const std::string& bundlePath) override;
};

} // namespace quenby
