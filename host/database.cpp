#include "host/database.h"

#include <filesystem>

#include "brunvik/ado/errors.h"
#include "host/file_database.h"
#include "host/server_database.h"
#include "schema/tables.h"

namespace brunvik::host {

namespace {

constexpr std::string_view file_scheme = "sqlite:";
constexpr std::string_view server_scheme = "odbc:";

bool is_on_a_server(const std::string& address) {
  return address.starts_with(server_scheme) && address.size() > server_scheme.size();
}

std::string on_server(const std::string& address) { return address.substr(server_scheme.size()); }

// Other programs write a password into an address in two ways: as a connection string does, and behind the user.
std::string shown_unknown(const std::string& address) {
  const std::string shown = shown_address(address);
  const auto user = shown.find("://");
  const auto host = shown.rfind('@');
  if (user == std::string::npos || host == std::string::npos) return shown;
  const auto password = shown.find(':', user + 3);
  if (password > host) return shown;
  return shown.substr(0, password + 1) + "***" + shown.substr(host);
}

std::string path_in(const std::string& address) {
  if (!address.starts_with(file_scheme) || address.size() == file_scheme.size()) {
    throw UnknownAddress("'" + shown_unknown(address) +
                         "' is no database: sqlite:PATH, sqlite::memory: and odbc:CONNECTION STRING are");
  }
  return address.substr(file_scheme.size());
}

}  // namespace

std::vector<std::string> names_of_tables() {
  std::vector<std::string> names;
  for (const schema::Table& table : schema::tables()) names.emplace_back(table.name);
  return names;
}

std::string address_of_file(const std::string& path) { return std::string(file_scheme) + path; }

std::string file_at(const std::string& address) {
  return address == in_memory || is_on_a_server(address) ? std::string() : path_in(address);
}

std::string address_for_another_run(const std::string& address) {
  if (address == in_memory) return {};
  if (is_on_a_server(address)) return std::string(server_scheme) + address_without_password(on_server(address));
  return address_of_file(std::filesystem::absolute(path_in(address)).string());
}

Database open_database(const std::string& address, bool create) {
  if (is_on_a_server(address)) return open_server(on_server(address), create);
  return {open_file(path_in(address), create), schema::Engine::sqlite};
}

Database open_fresh_database(const std::string& address) {
  if (is_on_a_server(address)) return open_fresh_server(on_server(address));
  return {open_fresh_file(path_in(address)), schema::Engine::sqlite};
}

void all_or_nothing(ado::Connection& database, const std::function<void()>& work) {
  database.BeginTrans();
  try {
    work();
    database.CommitTrans();
  } catch (...) {
    try {
      database.RollbackTrans();
    } catch (const ado::RuntimeError&) {
      // A commit that failed may have ended the transaction; what counts is that failure.
    }
    throw;
  }
}

}  // namespace brunvik::host
