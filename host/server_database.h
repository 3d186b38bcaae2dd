// The books on a server, or on the servers of a cluster.
#pragma once

#include <string>

#include "host/database.h"

namespace brunvik::host {

// As open_database and open_fresh_database say, for ODBC's connection strings.
Database open_server(const std::string& address, bool create);
Database open_fresh_server(const std::string& address);

// An address as it may be shown, with what stands for a password made out; and as another run may be given it, without
// the password, which it takes from the environment.
std::string shown_address(const std::string& address);
std::string address_without_password(const std::string& address);

}  // namespace brunvik::host
