#pragma once

#include <optional>
#include <string>
#include <utility>

namespace quorvane {

/// What a failed step tells the user: one sentence that names file, line and reason.
struct Failure {
  std::string Message;
};

/// Either a value or the sentence that the user will read instead of it.
template <typename T>
class [[nodiscard]] Result {
 public:
  Result(T value) : value_(std::move(value)) {}                      // NOLINT: meant to convert
  Result(Failure failure) : message_(std::move(failure.Message)) {}  // NOLINT: meant to convert

  explicit operator bool() const { return value_.has_value(); }
  T& operator*() { return *value_; }
  const T& operator*() const { return *value_; }
  T* operator->() { return &*value_; }
  const T* operator->() const { return &*value_; }
  /// The sentence for the user; empty on success.
  const std::string& Message() const { return message_; }
  /// The same as the outcome of a step that cannot go on: `if (!text) return text.Error();`
  Failure Error() const { return {message_}; }

 private:
  std::optional<T> value_;
  std::string message_;
};

/// The outcome of a step that gives nothing back when it succeeds.
template <>
class [[nodiscard]] Result<void> {
 public:
  Result() = default;
  Result(Failure failure) : message_(std::move(failure.Message)) {}  // NOLINT: meant to convert

  explicit operator bool() const { return !message_.has_value(); }
  std::string Message() const { return message_.value_or(""); }
  Failure Error() const { return {Message()}; }

 private:
  std::optional<std::string> message_;
};

}  // namespace quorvane
