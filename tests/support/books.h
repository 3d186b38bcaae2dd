// Books in a SQLite database, in memory unless said otherwise, laid as a host would lay them.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "brunvik/ado/connection.h"
#include "drivers/sqlite/connection.h"

namespace brunvik::test {

// In a file where a path is given; its last moments may be lost with the power.
std::shared_ptr<sqlite::Connection> lay_books(const std::string& path = ":memory:");

// Runs statements, one after the other.
void run(ado::Connection& books, const std::vector<std::string>& statements);

// The records of a select: the values of a record joined by "|", a null as "null".
std::vector<std::string> records(ado::Connection& books, std::string_view select);

}  // namespace brunvik::test
