#include "drivers/odbc/server.h"

#include "brunvik/ado/errors.h"
#include "drivers/odbc/address.h"
#include "drivers/odbc/mariadb.h"
#include "drivers/odbc/sql_server.h"

namespace brunvik::odbc {

namespace {

// Keywords of MariaDB's ODBC driver, which others pass over: without them it would wait for a silent server for ever,
// count no row that an update leaves as it was, and take the text for another encoding. It passes over ODBC's own time
// for a login.
std::string completed(const std::string& connection_string, const Options& options, std::chrono::seconds time_to_open) {
  std::string complete = with_password(connection_string, options.password);
  const std::string seconds = std::to_string(options.answer_timeout.count());
  for (const char* const keyword : {"READ_TIMEOUT", "WRITE_TIMEOUT"})
    complete = with_default(complete, keyword, seconds);
  complete = with_default(complete, "OPTION", "2");
  complete = with_default(complete, "CONN_TIMEOUT", std::to_string(time_to_open.count()));
  return with_default(complete, "CHARSET", "utf8mb4");
}

}  // namespace

std::unique_ptr<Server> connect(const std::string& connection_string, const Options& options,
                                std::chrono::seconds time_to_open) {
  Link link(completed(connection_string, options, time_to_open), time_to_open);
  const std::string name = link.engine_name();
  if (name == mariadb_name) return std::make_unique<MariaDb>(std::move(link), options);
  if (name == sql_server_name) return std::make_unique<SqlServer>(std::move(link), options);
  throw ado::RuntimeError(ado::error::provider_failed,
                          "The engine '" + name + "' is none that the driver knows: " + std::string(mariadb_name) +
                              " and " + std::string(sql_server_name) + " are.");
}

}  // namespace brunvik::odbc
