#include "host/trace.h"

#include <algorithm>
#include <utility>

#include "brunvik/ado/errors.h"

namespace brunvik::host {

void Trace::hand_over(ado::Road road, std::string_view statement) {
  rehearsed_.reset();
  std::optional<Rehearsal> due;
  std::erase_if(rehearsals_, [&](Rehearsal& rehearsal) {
    if (rehearsal.of && *rehearsal.of != road) return false;
    if (--rehearsal.at > 0) return false;
    if (!due) due = rehearsal;
    return true;
  });
  if (!due) return;
  rehearsed_ = due->number;
  throw ado::RuntimeError(due->number, due->text, std::string(statement));
}

void Trace::record(const ado::SentStatement& sent) {
  statements_.push_back({sent.road, std::string(sent.text), rehearsed_});
}

TracedConnection::TracedConnection(ado::ConnectionReference driver, ado::Road road, std::shared_ptr<Trace> trace)
    : driver_(std::move(driver)), road_(road), trace_(std::move(trace)) {}

ado::Recordset TracedConnection::Execute(std::string_view CommandText) {
  trace_->hand_over(road_, CommandText);
  return open_driver().Execute(CommandText);
}

void TracedConnection::BeginTrans() { open_driver().BeginTrans(); }
void TracedConnection::CommitTrans() { open_driver().CommitTrans(); }
void TracedConnection::RollbackTrans() { open_driver().RollbackTrans(); }

ado::Connection& TracedConnection::open_driver() const {
  if (closed_) ado::raise(ado::error::object_closed);
  return *driver_;
}

}  // namespace brunvik::host
