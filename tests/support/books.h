// Books in a SQLite database in memory, laid as a host would lay them.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "brunvik/ado/connection.h"
#include "drivers/sqlite/connection.h"

namespace brunvik::test {

std::shared_ptr<sqlite::Connection> lay_books();

// Runs statements, one after the other.
void run(ado::Connection& books, const std::vector<std::string>& statements);

// The records of a select: the values of a record joined by "|", a null as "null".
std::vector<std::string> records(ado::Connection& books, std::string_view select);

}  // namespace brunvik::test
