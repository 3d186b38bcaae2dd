// The place of a value in a prepared statement. It is bound once: each run only writes its value there.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "drivers/odbc/handles.h"

namespace brunvik::odbc {

// A place takes texts only, or whole numbers only, and stays where it is while its statement lives.
class Parameter {
 public:
  // The value for the next run, at the place that has a number in its statement, from one on. Throws a Failure.
  void put(std::string_view text, const Statement& statement, SQLUSMALLINT number);
  void put(std::int64_t whole_number, const Statement& statement, SQLUSMALLINT number);

  // Lets go of the room that only an uncommonly long text needs.
  void let_go() noexcept;

 private:
  void bind(const Statement& statement, SQLUSMALLINT number, SQLSMALLINT form, SQLSMALLINT type);

  std::vector<char> room_;  // none as long as nothing is bound
  SQLLEN length_ = 0;
};

}  // namespace brunvik::odbc
