// What an ODBC driver reports, as our run-time errors: with their number, the engine's own text, and the statement.
#pragma once

#include <exception>
#include <string>
#include <string_view>
#include <utility>

#include "brunvik/ado/types.h"
#include "drivers/dialects/refusal.h"
#include "drivers/odbc/handles.h"

namespace brunvik::odbc {

struct Diagnosis {
  std::string state;  // five characters
  Long native = 0;    // the engine's own number
  std::string text;

  // The connection is gone, or its server has lost its cluster and refuses all work.
  bool is_lost() const noexcept;

  // The engine has chosen the statement, and the transaction around it, for the end of a deadlock: nothing was done.
  bool did_nothing() const noexcept;

  // What a node says when it has waited in vain: for another connection, or for a cluster that it has lost.
  bool may_be_cut_off() const noexcept;
};

// A server that is reached, and has lost its cluster.
Diagnosis cut_off(const std::string& text);

// What went wrong with a handle last.
Diagnosis diagnosis_of(SQLSMALLINT type, SQLHANDLE handle);

template <SQLSMALLINT Type>
Diagnosis diagnosis_of(const Handle<Type>& handle) {
  return diagnosis_of(Type, handle.get());
}

// What a server refused, until it is known whether the statement is to be sent again.
class Failure : public std::exception {
 public:
  explicit Failure(Diagnosis diagnosis) : diagnosis_(std::move(diagnosis)) {}

  const Diagnosis& diagnosis() const noexcept { return diagnosis_; }
  const char* what() const noexcept override { return diagnosis_.text.c_str(); }

 private:
  Diagnosis diagnosis_;
};

// The error that a diagnosis is for the library.
[[noreturn]] void raise_failure(const Diagnosis& diagnosis, std::string_view statement);

// Throws a Failure where a function of ODBC didn't go through. A warning is none, nor is a result without a row.
template <SQLSMALLINT Type>
void expect(SQLRETURN result, const Handle<Type>& handle) {
  if (!SQL_SUCCEEDED(result) && result != SQL_NO_DATA) throw Failure(diagnosis_of(handle));
}

}  // namespace brunvik::odbc
