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

  // A new statement, whose text goes to the engine unlooked at.
  Statement statement() const;

  // Sends a text as it stands, and returns what it selects. Throws a Failure.
  ado::Recordset execute(std::string_view text) const;

 private:
  std::string told(SQLUSMALLINT what) const;

  Environment environment_;
  Database database_;
};

}  // namespace brunvik::odbc
