// What stands behind a connection: the servers of its address, the one that is worked on, and the host's transaction.
#pragma once

#include <chrono>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "drivers/dialects/host_transaction.h"
#include "drivers/odbc/connection.h"
#include "drivers/odbc/failure.h"
#include "drivers/odbc/server.h"

namespace brunvik::odbc {

class Engine {
 public:
  Engine(const std::string& address, Options options);

  ado::Recordset execute(std::string_view statement);
  void begin();
  void commit();
  void roll_back();
  bool has_tables();
  std::string_view engine_name() const noexcept { return engine_name_; }
  std::size_t cached_statements() const noexcept { return server_ ? server_->cached_statements() : 0; }

 private:
  // The server that is worked on; another one where the last was lost. Throws a RuntimeError of provider_failed where
  // none answers in time.
  Server& server(std::string_view statement);

  // Tries each server once. Null, with this round's first failure in the place of an earlier one's, where none
  // answers.
  std::unique_ptr<Server> first_that_answers(std::string& reason, std::chrono::seconds time_to_open) const;

  void expect_known_tables(Server& server) const;

  // What a failure means for the connection and its transaction; throws the error that it is for the host.
  [[noreturn]] void failed(const Diagnosis& diagnosis, std::string_view statement);

  void let_others_begin();
  void wait_a_moment(int time);

  std::vector<std::string> servers_;
  Options options_;
  dialects::HostTransaction transaction_;
  std::minstd_rand random_{std::random_device{}()};
  std::unique_ptr<Server> server_;
  std::string_view engine_name_;
};

}  // namespace brunvik::odbc
