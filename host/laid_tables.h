// What a database lacks of the tables, so that a file laid by an older version goes on.
#pragma once

#include <string>
#include <vector>

#include "brunvik/ado/connection.h"

namespace brunvik::host {

// The statements that lay what is lacking. Nothing is changed.
std::vector<std::string> lacking_statements(ado::Connection& database);

// Lays what is lacking, all of it or nothing, and gives the statements that did. Throws what the database throws.
std::vector<std::string> add_what_is_lacking(ado::Connection& database);

}  // namespace brunvik::host
