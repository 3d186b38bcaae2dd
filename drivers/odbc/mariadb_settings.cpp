#include "drivers/odbc/mariadb_settings.h"

#include <string>

#include "brunvik/ado/errors.h"
#include "drivers/odbc/failure.h"

namespace brunvik::odbc {

namespace {

constexpr std::string_view collation = "utf8mb4_uca1400_as_ci";

// SIMULTANEOUS_ASSIGNMENT: an update's assignments don't see one another. NO_UNSIGNED_SUBTRACTION: a difference with a
// byte may be negative.
constexpr std::string_view modes =
    "STRICT_ALL_TABLES,NO_BACKSLASH_ESCAPES,ANSI_QUOTES,PIPES_AS_CONCAT,SIMULTANEOUS_ASSIGNMENT,"
    "NO_UNSIGNED_SUBTRACTION,ONLY_FULL_GROUP_BY,NO_ENGINE_SUBSTITUTION";

[[noreturn]] void refuse(const std::string& reason) { throw ado::RuntimeError(ado::error::provider_failed, reason); }

bool is_node(const Link& link) {
  return link.execute("select @@wsrep_on as clustered").value("clustered").as_long() != 0;
}

std::string status(const Link& link, const std::string& name) {
  const ado::Recordset found = link.execute("show status like '" + name + "'");
  return found.at_end() ? std::string() : found.value("Value").as_text();
}

}  // namespace

bool is_ready(const Link& link) try {
  return !is_node(link) || status(link, "wsrep_ready") == "ON";
} catch (const Failure& failure) {
  if (failure.diagnosis().is_lost()) return false;
  throw;
}

void expect_usable(const Link& link) {
  if (!is_ready(link)) throw Failure(cut_off("The server is a node that isn't ready for work in its cluster."));
  const ado::Recordset found = link.execute(
      "select @@lower_case_table_names as names, @@character_set_client as characters, database() as base, "
      "(select default_collation_name from information_schema.schemata where schema_name=database()) as collation");
  if (found.value("base").is_null()) refuse("The connection string names no DATABASE.");
  if (found.value("names").as_long() == 0) {
    refuse(
        "The server tells the names of tables apart by their case: lower_case_table_names has to be 1, which is set "
        "before the server's data folder is made.");
  }
  if (found.value("characters").as_text() != "utf8mb4") {
    refuse("The connection's character set is " + found.value("characters").as_text() +
           ": CHARSET in the connection string has to be utf8mb4.");
  }
  const std::string base = found.value("base").as_text();
  const std::string own = found.value("collation").as_text();
  if (own != collation) {
    refuse("The database's collation is " + own +
           ", which holds other keys for equal than the books do: alter database " + base +
           " character set utf8mb4 collate " + std::string(collation));
  }
}

void make_settings(const Link& link, const Options& options) {
  const std::string seconds = std::to_string(options.busy_timeout.count());
  link.execute("set session sql_mode='" + std::string(modes) + "',autocommit=1,collation_connection=" +
               std::string(collation) + ",innodb_lock_wait_timeout=" + seconds + ",lock_wait_timeout=" + seconds);
  // Their types are settled when a statement that uses them is read, before it assigns them.
  link.execute("set @brunvik_value=0e0,@brunvik_decimal=0e0,@brunvik_places=0");
  if (is_node(link)) link.execute("set session wsrep_sync_wait=1");
}

std::size_t longest_statement(const Link& link) {
  // What the protocol puts around a statement and its values.
  constexpr std::size_t around = 4'096;
  const std::string packet =
      link.execute("select cast(@@max_allowed_packet as char) as bytes").value("bytes").as_text();
  return static_cast<std::size_t>(std::stoull(packet)) - around;
}

}  // namespace brunvik::odbc
