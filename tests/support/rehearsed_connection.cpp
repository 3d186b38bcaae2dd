#include "tests/support/rehearsed_connection.h"

#include <utility>

#include "brunvik/ado/errors.h"

namespace brunvik::test {

RehearsedConnection::RehearsedConnection(ado::ConnectionReference driver, std::string_view road,
                                         std::shared_ptr<Rehearsal> rehearsal)
    : driver_(std::move(driver)), road_(road), rehearsal_(std::move(rehearsal)) {}

ado::Recordset RehearsedConnection::Execute(std::string_view CommandText) {
  if (closed) ado::raise(ado::error::object_closed);
  rehearsal_->statements.push_back(road_ + "|" + std::string(CommandText));
  if (rehearsal_->statements.size() == rehearsal_->fails_at) {
    throw ado::RuntimeError(rehearsed_number, std::string(rehearsed_text), std::string(CommandText));
  }
  return driver_->Execute(CommandText);
}

}  // namespace brunvik::test
