// Run-time errors: each has a number that hosts know, and a text for the person at the screen.
//
// A RuntimeError never crosses the public boundary of a bill: a verb's trap turns it into the verb's result.
// It does reach a host from a connection that the host calls itself, and from late binding.
#pragma once

#include <exception>
#include <new>
#include <string>
#include <string_view>

#include "brunvik/ado/types.h"

namespace brunvik::ado {

namespace error {

inline constexpr Long invalid_call = 5;
inline constexpr Long overflow = 6;
inline constexpr Long out_of_memory = 7;
inline constexpr Long subscript = 9;
inline constexpr Long division_by_zero = 11;
inline constexpr Long type_mismatch = 13;
inline constexpr Long internal = 51;
inline constexpr Long object_not_set = 91;
inline constexpr Long invalid_use_of_null = 94;
inline constexpr Long no_such_object = 424;
inline constexpr Long no_such_class = 429;
inline constexpr Long no_such_member = 438;
inline constexpr Long wrong_argument_count = 450;
inline constexpr Long no_current_record = 3021;
inline constexpr Long no_such_field = 3265;
inline constexpr Long object_closed = 3704;
inline constexpr Long connection_closed = 3709;

// The 32-bit codes of the provider, as the signed numbers in which a verb returns them.
inline constexpr Long statement_refused = static_cast<Long>(0x80040E14);
inline constexpr Long no_such_table = static_cast<Long>(0x80040E37);
inline constexpr Long constraint_violated = static_cast<Long>(0x80040E2F);
inline constexpr Long data_overflow = static_cast<Long>(0x80040E57);
inline constexpr Long timed_out = static_cast<Long>(0x80040E31);
inline constexpr Long provider_failed = static_cast<Long>(0x80004005);
inline constexpr Long no_transaction = static_cast<Long>(0x8004D00E);
inline constexpr Long transaction_open = static_cast<Long>(0x8004D013);

}  // namespace error

// The Chinese text of an ordinary run-time error, as hosts know it; of any other number 应用程序定义或对象定义错误.
std::string_view error_text(Long number) noexcept;

class RuntimeError : public std::exception {
 public:
  // An ordinary run-time error with its own text.
  explicit RuntimeError(Long number);

  // An error of the provider: `description` is the engine's own text, `statement` what the engine was given.
  RuntimeError(Long number, std::string description, std::string statement = {});

  Long number() const noexcept { return number_; }
  const std::string& description() const noexcept { return description_; }

  // The statement that failed or could not be sent, empty where no statement was at work.
  const std::string& statement() const noexcept { return statement_; }

  const char* what() const noexcept override { return description_.c_str(); }

 private:
  Long number_;
  std::string description_;
  std::string statement_;
};

[[noreturn]] void raise(Long number, std::string_view statement = {});

// An error as it passes by.
struct SeenError {
  Long number;
  std::string_view text;
  std::string_view statement;
};

// In a catch clause: calls `see` with the exception at hand as an error, whatever was thrown. The library throws
// run-time errors alone, but a host's connection or clock may throw anything: 7 where memory ran out, else 51.
template <class See>
void see_current_error(See&& see) {
  try {
    throw;
  } catch (const RuntimeError& failure) {
    see(SeenError{failure.number(), failure.description(), failure.statement()});
  } catch (const std::bad_alloc&) {
    see(SeenError{error::out_of_memory, error_text(error::out_of_memory), {}});
  } catch (...) {
    see(SeenError{error::internal, error_text(error::internal), {}});
  }
}

}  // namespace brunvik::ado
