#include "drivers/sqlite/connection.h"

#include <utility>

#include "brunvik/ado/errors.h"
#include "drivers/sqlite/engine.h"

namespace brunvik::sqlite {

Connection::Connection(std::unique_ptr<Engine> engine) : engine_(std::move(engine)) {}
Connection::~Connection() = default;

Engine& Connection::open_engine(std::string_view statement) const {
  if (!engine_) ado::raise(ado::error::object_closed, statement);
  return *engine_;
}

ado::Recordset Connection::Execute(std::string_view CommandText) {
  return open_engine(CommandText).execute(CommandText);
}

void Connection::BeginTrans() { open_engine().begin(); }
void Connection::CommitTrans() { open_engine().commit(); }
void Connection::RollbackTrans() { open_engine().roll_back(); }

void Connection::Close() noexcept { engine_.reset(); }

std::size_t Connection::cached_statements() const noexcept { return engine_ ? engine_->cached_statements() : 0; }

std::size_t Connection::held_bytes() const noexcept { return engine_ ? engine_->held_bytes() : 0; }

std::shared_ptr<Connection> open(const std::string& path, const Options& options) {
  return std::make_shared<Connection>(std::make_unique<Engine>(path, options));
}

}  // namespace brunvik::sqlite
