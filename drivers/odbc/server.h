// An open connection to one server, in the words of its engine.
#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <string_view>

#include "brunvik/ado/recordset.h"
#include "drivers/odbc/connection.h"
#include "drivers/odbc/link.h"

namespace brunvik::odbc {

// What the engine refuses is thrown as a Failure, what the driver refuses itself as a RuntimeError.
class Server {
 public:
  explicit Server(Link link) : link_(std::move(link)) {}
  Server(const Server&) = delete;
  Server& operator=(const Server&) = delete;
  virtual ~Server() = default;

  virtual ado::Recordset execute(std::string_view statement) = 0;

  // A transaction in which nobody else changes what it has read. A second one waits for the first.
  virtual void begin() = 0;
  virtual void commit() = 0;
  virtual void roll_back() = 0;

  // Whether it is a node that has lost its cluster, and so takes no work.
  virtual bool is_cut_off() { return false; }

  virtual std::string_view name() const noexcept = 0;

  virtual std::size_t cached_statements() const noexcept { return 0; }

  // The names of the tables in the database.
  virtual ado::Recordset tables() = 0;

 protected:
  Link link_;
};

// Connects to one server, asks which engine it is, and makes its settings those that the books need. Throws a Failure
// where the server can't be worked on, and a RuntimeError where its engine or its database is none for the books.
std::unique_ptr<Server> connect(const std::string& connection_string, const Options& options,
                                std::chrono::seconds time_to_open);

}  // namespace brunvik::odbc
