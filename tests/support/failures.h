// What a call or a statement fails with.
#pragma once

#include <string_view>
#include <utility>

#include "brunvik/ado/connection.h"
#include "brunvik/ado/errors.h"

namespace brunvik::test {

// The error that a call ends with; of number 0 without one.
template <class Call>
ado::RuntimeError failure_of(Call&& call) {
  try {
    std::forward<Call>(call)();
  } catch (const ado::RuntimeError& failure) {
    return failure;
  }
  return ado::RuntimeError(0, "nothing failed");
}

// The number of the error that a statement ends with, 0 without one.
Long error_of(ado::Connection& connection, std::string_view statement);

inline bool holds(const ado::RuntimeError& failure, std::string_view text) {
  return failure.description().find(text) != std::string::npos;
}

}  // namespace brunvik::test
