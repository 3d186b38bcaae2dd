// Books laid as a host would lay them.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "brunvik/ado/connection.h"

namespace brunvik::test {

// In SQLite's memory; in a database of its own on the server that the run was given, where it was given one.
ado::ConnectionReference lay_books();

// In a file of SQLite; its last moments may be lost with the power.
ado::ConnectionReference lay_books(const std::string& path);

// Runs statements, one after the other.
void run(ado::Connection& books, const std::vector<std::string>& statements);

// The records of a select: the values of a record joined by "|", a null as "null".
std::vector<std::string> records(ado::Connection& books, std::string_view select);

}  // namespace brunvik::test
