// Books on a MariaDB server as the command meets them.
#pragma once

#include <nlohmann/json.hpp>

#include "host/json.h"
#include "tests/host_process.h"
#include "tests/support/mariadb.h"
#include "tests/support/own_server.h"

namespace brunvik::host {

// A line of the host's own statement.
inline std::string sql(const std::string& statement) { return Json{{"do", "sql"}, {"text", statement}}.dump() + '\n'; }

using test::by_tcp;
using test::OwnServer;
using test::written_by;

}  // namespace brunvik::host
