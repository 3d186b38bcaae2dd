// An open connection of ODBC.
#pragma once

#include <chrono>
#include <string>
#include <string_view>

#include "brunvik/ado/recordset.h"
#include "drivers/odbc/handles.h"

namespace brunvik::odbc {

class Link {
 public:
  // Throws a Failure. A server that doesn't answer in the time for opening is given up.
  Link(const std::string& connection_string, std::chrono::seconds time_to_open);
  ~Link();
  Link(Link&&) noexcept = default;
  Link& operator=(Link&&) = delete;

  // The engine's name and its version, as it tells them.
  std::string engine_name() const;
  std::string engine_version() const;

  // Whether the value of any column can be asked for, of one whose place is bound as well. Without that a driver gives
  // them from the left to the right, and those that are bound stand in front.
  bool gives_any_column() const noexcept { return gives_any_column_; }

  // A new statement, whose text goes to the engine unlooked at.
  Statement statement() const;

  // Carries a text out as it stands. Throws a Failure.
  void send(const Statement& statement, std::string_view text) const;

  // The same with a statement of its own, and returns what it selects.
  ado::Recordset execute(std::string_view text) const;

 private:
  std::string told(SQLUSMALLINT what) const;

  Environment environment_;
  Database database_;
  bool gives_any_column_ = false;
  bool prepares_first_ = false;
};

}  // namespace brunvik::odbc
