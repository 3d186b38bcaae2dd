// The books on a server, or on the servers of a cluster.
#pragma once

#include <string>

#include "host/database.h"

namespace brunvik::host {

// As open_database and open_fresh_database say, for ODBC's connection strings.
Database open_server(const std::string& address, bool create);
Database open_fresh_server(const std::string& address);

// An address as it may be shown: without a password.
std::string shown_address(const std::string& address);

}  // namespace brunvik::host
