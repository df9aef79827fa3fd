#pragma once

namespace quenby {

/// Quits the application the way the user's Quit does, running the usual termination.
class ApplicationTerminating {
public:
  virtual ~ApplicationTerminating() = default;
  /// Takes effect once the caller's turn on the main thread is over, so that no feature is torn
  /// down beneath the code that asked.
  virtual void terminate() = 0;
};

/// Never quits.
class InertApplicationTerminator final : public ApplicationTerminating {
public:
  void terminate() override {}
};

} // namespace quenby
