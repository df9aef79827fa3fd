#pragma once

#include <functional>

namespace quenby {

/// Owns one registration (an observer, a timer, a pending task). Destroying or cancelling the
/// token ends it; the cancellation runs at most once. Move-only, so exactly one owner decides
/// how long the registration lives.
class ObservationToken {
public:
  ObservationToken() = default;
  explicit ObservationToken(std::function<void()> cancellation);
  ObservationToken(ObservationToken&& other) noexcept;
  ObservationToken& operator=(ObservationToken&& other) noexcept;
  ObservationToken(const ObservationToken&) = delete;
  ObservationToken& operator=(const ObservationToken&) = delete;
  ~ObservationToken();

  void cancel();
  /// True once cancelled, and for a token that never held a registration.
  [[nodiscard]] bool isCancelled() const { return !cancellation_; }

private:
  std::function<void()> cancellation_;
};

} // namespace quenby
