// What a MariaDB server and its database must be for the books, and what a connection sets for itself.
#pragma once

#include <cstddef>

#include "drivers/odbc/connection.h"
#include "drivers/odbc/link.h"

namespace brunvik::odbc {

// Whether a server takes work: a node of a cluster doesn't while it comes back, and when it has lost the others.
bool is_ready(const Link& link);

// Throws a RuntimeError that names the setting where something is in the way that a connection can't mend: the case of
// table names, the database's character set and collation. Throws a Failure of a lost connection where the server is a
// node that is out of its cluster.
void expect_usable(const Link& link);

// Strict values, a backslash that is a character, every assignment of an update from the values before it, waiting
// times; on a node of a cluster, no answer before what was committed elsewhere has arrived.
void make_settings(const Link& link, const Options& options);

// How long a statement may be, in bytes. With a longer one the server closes the connection.
std::size_t longest_statement(const Link& link);

}  // namespace brunvik::odbc
