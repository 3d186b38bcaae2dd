#include "drivers/odbc/connection.h"

#include <utility>

#include "brunvik/ado/errors.h"
#include "drivers/odbc/engine.h"

namespace brunvik::odbc {

Connection::Connection(std::unique_ptr<Engine> engine) : engine_(std::move(engine)) {}
Connection::~Connection() = default;

Engine& Connection::opened(std::string_view statement) const {
  if (!engine_) ado::raise(ado::error::object_closed, statement);
  return *engine_;
}

ado::Recordset Connection::Execute(std::string_view CommandText) { return opened(CommandText).execute(CommandText); }

void Connection::BeginTrans() { opened({}).begin(); }

void Connection::CommitTrans() { opened({}).commit(); }

void Connection::RollbackTrans() { opened({}).roll_back(); }

void Connection::Close() noexcept { engine_.reset(); }

std::string_view Connection::engine_name() const { return opened({}).engine_name(); }

std::size_t Connection::cached_statements() const noexcept { return engine_ ? engine_->cached_statements() : 0; }

bool Connection::has_tables() { return opened({}).has_tables(); }

std::shared_ptr<Connection> open(const std::string& address, const Options& options) {
  return std::make_shared<Connection>(std::make_unique<Engine>(address, options));
}

}  // namespace brunvik::odbc
