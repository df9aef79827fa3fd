#pragma once

#include <utility>
#include <variant>

namespace quenby {

/// The error side of an `Expected`, so that `return Unexpected{error};` reads plainly.
template <typename E> struct Unexpected { E error; };
template <typename E> Unexpected(E) -> Unexpected<E>;

/// A value or a typed error (the standard library's `expected` arrives only with C++23).
template <typename T, typename E> class Expected {
public:
  Expected(T value) : storage_(std::in_place_index<0>, std::move(value)) {} // NOLINT
  Expected(Unexpected<E> error)                                             // NOLINT
      : storage_(std::in_place_index<1>, std::move(error.error)) {}

  [[nodiscard]] bool hasValue() const { return storage_.index() == 0; }
  explicit operator bool() const { return hasValue(); }

  [[nodiscard]] T& value() & { return std::get<0>(storage_); }
  [[nodiscard]] const T& value() const& { return std::get<0>(storage_); }
  [[nodiscard]] T&& value() && { return std::get<0>(std::move(storage_)); }
  [[nodiscard]] const E& error() const { return std::get<1>(storage_); }

  T* operator->() { return &value(); }
  const T* operator->() const { return &value(); }
  T& operator*() & { return value(); }
  const T& operator*() const& { return value(); }

private:
  std::variant<T, E> storage_;
};

} // namespace quenby
