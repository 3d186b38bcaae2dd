// The two roads of statements to one database, watched: the road of the bills and the road of the session. Each can
// be closed, and a failure can be rehearsed on either, so that a host can be tried against what rarely happens.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "brunvik/ado/connection.h"
#include "brunvik/ado/wire.h"

namespace brunvik::host {

struct TracedStatement {
  ado::Road road;
  // Exactly as it was handed to the connection.
  std::string text;
  // The number of a rehearsed failure.
  std::optional<Long> failure;
};

// The statement that many statements from now fails instead of being sent.
struct Rehearsal {
  Long at = 1;
  // Only statements of this road count; of either where it is left out.
  std::optional<ado::Road> of;
  Long number = 0;
  std::string text;
};

class Trace {
 public:
  void rehearse(Rehearsal rehearsal) { rehearsals_.push_back(std::move(rehearsal)); }

  // A statement is handed over. Throws the rehearsed failure where one is due.
  void hand_over(ado::Road road, std::string_view statement);

  // A statement is over, as the hook of the wire tells it.
  void record(const ado::SentStatement& sent);

  // What was recorded since it was taken last.
  std::vector<TracedStatement> take() { return std::exchange(statements_, {}); }

 private:
  std::vector<TracedStatement> statements_;
  std::vector<Rehearsal> rehearsals_;
  // The number of the statement at work, where it fails on purpose.
  std::optional<Long> rehearsed_;
};

// A connection of the driver as one road sees it.
class TracedConnection final : public ado::Connection {
 public:
  TracedConnection(ado::ConnectionReference driver, ado::Road road, std::shared_ptr<Trace> trace);

  ado::Recordset Execute(std::string_view CommandText) override;

  // No statements: they are neither recorded nor counted by a rehearsal.
  void BeginTrans() override;
  void CommitTrans() override;
  void RollbackTrans() override;

  Long State() const noexcept override { return closed_ ? 0 : driver_->State(); }

  void set_closed(bool closed) noexcept { closed_ = closed; }

 private:
  // The driver's connection; error 3704 when this one is closed.
  ado::Connection& open_driver() const;

  ado::ConnectionReference driver_;
  ado::Road road_;
  std::shared_ptr<Trace> trace_;
  bool closed_ = false;
};

}  // namespace brunvik::host
