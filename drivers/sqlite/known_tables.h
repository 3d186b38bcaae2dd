// Whether a database is one of the books, or that of another program.
#pragma once

#include <string>
#include <vector>

struct sqlite3;

namespace brunvik::sqlite {

// Whether the database holds anything, and whether it has one of these tables.
struct Contents {
  bool empty = true;
  bool known = false;
};

// Reads the database and changes nothing in it.
Contents contents_of(sqlite3* database, const std::vector<std::string>& known_tables);

}  // namespace brunvik::sqlite
