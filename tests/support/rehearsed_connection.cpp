#include "tests/support/rehearsed_connection.h"

#include <utility>

#include "brunvik/ado/errors.h"

namespace brunvik::test {

RehearsedConnection::RehearsedConnection(ado::ConnectionReference driver, std::string_view road,
                                         std::shared_ptr<Rehearsal> rehearsal)
    : driver_(std::move(driver)), road_(road), rehearsal_(std::move(rehearsal)) {}

void RehearsedConnection::hand_over(std::string_view statement) {
  if (closed) ado::raise(ado::error::object_closed);
  rehearsal_->statements.push_back(road_ + "|" + std::string(statement));
  if (rehearsal_->statements.size() == rehearsal_->fails_at) {
    throw ado::RuntimeError(rehearsed_number, std::string(rehearsed_text), std::string(statement));
  }
}

ado::Recordset RehearsedConnection::Execute(std::string_view CommandText) {
  hand_over(CommandText);
  return driver_->Execute(CommandText);
}

void RehearsedConnection::BeginTrans() {
  hand_over("BeginTrans");
  driver_->BeginTrans();
}

void RehearsedConnection::CommitTrans() {
  hand_over("CommitTrans");
  driver_->CommitTrans();
}

void RehearsedConnection::RollbackTrans() {
  hand_over("RollbackTrans");
  driver_->RollbackTrans();
}

}  // namespace brunvik::test
