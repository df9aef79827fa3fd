#include "base/ObservationToken.hpp"

#include <utility>

namespace quenby {

ObservationToken::ObservationToken(std::function<void()> cancellation)
    : cancellation_(std::move(cancellation)) {}

ObservationToken::ObservationToken(ObservationToken&& other) noexcept
    : cancellation_(std::exchange(other.cancellation_, nullptr)) {}

ObservationToken& ObservationToken::operator=(ObservationToken&& other) noexcept {
  if (this != &other) {
    cancel();
    cancellation_ = std::exchange(other.cancellation_, nullptr);
  }
  return *this;
}

ObservationToken::~ObservationToken() { cancel(); }

void ObservationToken::cancel() {
  // Taken out before the call so that a cancellation which re-enters cancel() finds nothing to do.
  if (auto cancellation = std::exchange(cancellation_, nullptr)) {
    cancellation();
  }
}

} // namespace quenby
