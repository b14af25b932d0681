#pragma once

#include <string>
#include <utility>
#include <variant>

namespace kvr5 {

/// The outcome of a call that may fail: a number of the classic runtime and its words.
///
/// Number 0 is success. Numbers in use: 5, 6, 7, 9, 11, 13, 52, 53, 55, 57, 58, 61, 62, 68, 70,
/// 71, 75, 76 (see Errors below), 1223 for a cancel, 3021, 3704 and the two negative numbers of
/// the database. An Error is never dropped silently: hand it to an ErrorState or to Ignora().
class [[nodiscard]] Error {
 public:
  Error() = default;
  /// An error with the runtime's own words for `number`; unknown numbers get
  /// "Application-defined or object-defined error".
  explicit Error(int number);
  Error(int number, std::string description)
      : number_(number), description_(std::move(description)) {}

  int Number() const { return number_; }
  const std::string& Description() const { return description_; }
  /// True when something failed.
  explicit operator bool() const { return number_ != 0; }

 private:
  int number_ = 0;
  std::string description_;
};

/// The numbers that the logic speaks of by name.
namespace errors {
inline constexpr int InvalidCall = 5;
inline constexpr int Overflow = 6;
inline constexpr int OutOfMemory = 7;
inline constexpr int SubscriptOutOfRange = 9;
inline constexpr int DivisionByZero = 11;
inline constexpr int TypeMismatch = 13;
inline constexpr int BadFileName = 52;
inline constexpr int FileNotFound = 53;
inline constexpr int FileAlreadyOpen = 55;
inline constexpr int DeviceIo = 57;
inline constexpr int FileExists = 58;
inline constexpr int DiskFull = 61;
inline constexpr int PastEndOfFile = 62;
inline constexpr int BadRecordNumber = 63;
inline constexpr int DeviceUnavailable = 68;
inline constexpr int PermissionDenied = 70;
inline constexpr int DiskNotReady = 71;
inline constexpr int PathFileAccess = 75;
inline constexpr int PathNotFound = 76;
inline constexpr int Cancelled = 1223;
inline constexpr int NoCurrentRecord = 3021;
inline constexpr int ObjectClosed = 3704;
inline constexpr int BadStatement = -2147217900;
inline constexpr int CannotOpen = -2147467259;
}  // namespace errors

/// Drops an outcome on purpose, where the routine goes on whatever happened.
inline void Ignora(const Error& /*error*/) {}

/// A value, or the error that took its place.
template <typename T>
class [[nodiscard]] Result {
 public:
  Result(T value) : content_(std::in_place_index<0>, std::move(value)) {}      // NOLINT
  Result(Error error) : content_(std::in_place_index<1>, std::move(error)) {}  // NOLINT

  explicit operator bool() const { return content_.index() == 0; }
  /// The value; only when the call succeeded.
  T& Value() { return std::get<0>(content_); }
  const T& Value() const { return std::get<0>(content_); }
  /// The error; success (number 0) when there is a value.
  Error Err() const { return content_.index() == 0 ? Error() : std::get<1>(content_); }

 private:
  std::variant<T, Error> content_;
};

/// The pending error of a routine: the last failure since it was cleared.
class ErrorState {
 public:
  void Clear() { last_ = Error(); }
  /// Keeps `error` if it is one; a success leaves what is pending. Returns true on success.
  bool Record(const Error& error) {
    if (error) last_ = error;
    return !error;
  }
  const Error& Last() const { return last_; }
  explicit operator bool() const { return static_cast<bool>(last_); }

 private:
  Error last_;
};

/// Gives what the user does amid the events of a long routine a pending error of its own, so that
/// it neither adds to that of the routine nor clears it.
class OwnError {
 public:
  explicit OwnError(ErrorState& state) : state_(state), outer_(std::exchange(state, {})) {}
  ~OwnError() { state_ = outer_; }
  OwnError(const OwnError&) = delete;
  OwnError& operator=(const OwnError&) = delete;

 private:
  ErrorState& state_;
  ErrorState outer_;
};

}  // namespace kvr5
