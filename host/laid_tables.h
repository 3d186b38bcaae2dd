// What a database lacks of the tables, so that a file laid by an older version goes on.
#pragma once

#include <string>
#include <vector>

#include "host/database.h"

namespace brunvik::host {

// The statements that lay what is lacking. Nothing is changed.
std::vector<std::string> lacking_statements(const Database& database);

// Lays what is lacking and gives the statements that did. All of it or nothing in a file; on a server, which keeps each
// statement by itself, what was laid before a failure stays. Throws what the database throws.
std::vector<std::string> add_what_is_lacking(const Database& database);

}  // namespace brunvik::host
