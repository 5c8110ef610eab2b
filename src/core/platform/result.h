// What an operation gives that can fail: a value, or a sentence that says why there is none.
#pragma once

#include <string>
#include <utility>
#include <variant>

namespace zarvo {

// Why something failed, in words that can be shown to the player ("No such file or directory").
struct Error {
  std::string message;
  bool missing = false;  // what was asked for doesn't exist; any other failure leaves that open
};

template <typename T>
class [[nodiscard]] Result {
 public:
  Result(T value) : state_(std::move(value)) {}      // NOLINT(google-explicit-constructor)
  Result(Error error) : state_(std::move(error)) {}  // NOLINT(google-explicit-constructor)

  [[nodiscard]] bool ok() const { return std::holds_alternative<T>(state_); }
  [[nodiscard]] explicit operator bool() const { return ok(); }

  // Only when ok(). A result that is about to go hands its value out, so that
  // `for (... : List().value())` is safe.
  [[nodiscard]] T& value() & { return std::get<T>(state_); }
  [[nodiscard]] const T& value() const& { return std::get<T>(state_); }
  [[nodiscard]] T value() && { return std::get<T>(std::move(state_)); }
  [[nodiscard]] T& operator*() & { return value(); }
  [[nodiscard]] const T& operator*() const& { return value(); }
  [[nodiscard]] T operator*() && { return std::move(*this).value(); }
  [[nodiscard]] T* operator->() { return &value(); }
  [[nodiscard]] const T* operator->() const { return &value(); }

  // Only when not ok().
  [[nodiscard]] const Error& error() const { return std::get<Error>(state_); }

 private:
  std::variant<T, Error> state_;
};

struct Nothing {};

// A Result without a value: `return Success();` or `return Error{"..."};`.
using Status = Result<Nothing>;

inline Status Success() { return Nothing{}; }

// For a step whose failure is passed over on purpose.
template <typename T>
void Ignore(const Result<T>& /*result*/) {}

}  // namespace zarvo
