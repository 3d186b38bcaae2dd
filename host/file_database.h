// The books in a file, or in the memory of the process.
#pragma once

#include <string>

#include "brunvik/ado/connection.h"

namespace brunvik::host {

// As open_database and open_fresh_database say of files; the path ":memory:" is the memory.
ado::ConnectionReference open_file(const std::string& path, bool create);
ado::ConnectionReference open_fresh_file(const std::string& path);

}  // namespace brunvik::host
