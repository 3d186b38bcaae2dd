#include "drivers/odbc/failure.h"

#include <algorithm>
#include <array>

#include "brunvik/ado/errors.h"

namespace brunvik::odbc {

namespace {

namespace error = ado::error;

template <std::size_t N>
bool is_one_of(Long number, const std::array<Long, N>& numbers) noexcept {
  return std::find(numbers.begin(), numbers.end(), number) != numbers.end();
}

// The numbers are MariaDB's, as are those below; the states are everybody's.
constexpr Long deadlock = 1213;
constexpr Long not_in_the_encoding = 1300;
constexpr Long lock_wait = 1205;
constexpr std::array<Long, 3> waited_too_long{deadlock, lock_wait, 1969};
constexpr Long cut_off_from_cluster = 1047;
constexpr std::array<Long, 9> connection_gone{cut_off_from_cluster, 1053, 1180, 1927, 2006, 2013, 2055, 5013, 5014};

Long number_of(const Diagnosis& diagnosis) noexcept {
  const std::string_view state = diagnosis.state;
  if (is_one_of(diagnosis.native, waited_too_long)) return error::timed_out;
  if (diagnosis.is_lost()) return error::provider_failed;
  if (state == "42S02") return error::no_such_table;
  // More than one row where a single value stands: a failure of the run, not of the text.
  if (state.starts_with("42") || state == "21S01") return error::statement_refused;
  if (state == "22003" || state == "22001") return error::data_overflow;
  // A text where a number has to stand breaks the column's rule, and so does one that is none in its encoding.
  if (state.starts_with("23") || state == "22007" || state == "22018") return error::constraint_violated;
  if (diagnosis.native == not_in_the_encoding) return error::constraint_violated;
  if (state == "HYT00" || state == "40001") return error::timed_out;
  return error::provider_failed;
}

}  // namespace

bool Diagnosis::is_lost() const noexcept { return state.starts_with("08") || is_one_of(native, connection_gone); }

bool Diagnosis::did_nothing() const noexcept { return native == deadlock; }

bool Diagnosis::may_be_cut_off() const noexcept { return native == lock_wait; }

Diagnosis cut_off(const std::string& text) { return {"08S01", cut_off_from_cluster, text}; }

Diagnosis diagnosis_of(SQLSMALLINT type, SQLHANDLE handle) {
  std::array<SQLCHAR, 6> state{};
  std::array<SQLCHAR, 4096> text{};
  SQLINTEGER native = 0;
  SQLSMALLINT length = 0;
  const SQLRETURN result = SQLGetDiagRec(type, handle, 1, state.data(), &native, text.data(),
                                         static_cast<SQLSMALLINT>(text.size()), &length);
  if (!SQL_SUCCEEDED(result)) return {"HY000", 0, "The ODBC driver reports a failure without a text."};
  return {reinterpret_cast<const char*>(state.data()), native, reinterpret_cast<const char*>(text.data())};
}

void raise_failure(const Diagnosis& diagnosis, std::string_view statement) {
  throw ado::RuntimeError(number_of(diagnosis), diagnosis.text, std::string(statement));
}

}  // namespace brunvik::odbc
