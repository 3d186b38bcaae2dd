// What the library asks of a database. A driver implements Connection; the host makes one, opens and closes it, and
// hands it to the session and to each bill.
//
// A connection and its recordsets belong to one thread at a time.
#pragma once

#include <memory>
#include <string_view>

#include "brunvik/ado/recordset.h"
#include "brunvik/ado/types.h"
#include "brunvik/ado/value.h"
#include "brunvik/ado/wire.h"

namespace brunvik::ado {

class Connection : public Object {
 public:
  // Runs one statement and returns what it selects, whole; an empty closed set where it selects nothing. Outside of a
  // transaction the statement is durable by itself when the call returns. Throws a RuntimeError: 3704 on a closed
  // connection, else a code of the provider with the engine's own text and the statement; a failed statement has
  // changed nothing, and a transaction that it stands in stays open with what came before.
  //
  // Where the engine gave up the whole transaction (a full disk, a deadlock, a connection cut off), the books are as
  // before its begin, and it is lost: each statement that follows is refused with provider_failed, so that none of them
  // enters the books by itself, until RollbackTrans or CommitTrans ends it.
  virtual Recordset Execute(std::string_view CommandText) = 0;

  // Begins a transaction: what is executed from here on enters the books as one, or not at all. Transactions belong to
  // the host; the library begins none. A writer that finds another at work waits here, and not in a later statement.
  // Throws a RuntimeError and begins nothing: 3704 on a closed connection, transaction_open where one is open already,
  // timed_out where another writer keeps the database for itself, else a code of the provider with the engine's text.
  //
  // A connection that is closed or destroyed with an open transaction rolls it back.
  virtual void BeginTrans() = 0;

  // Keeps what was executed since the begin, durable when the call returns. Throws a RuntimeError: 3704 on a closed
  // connection, no_transaction where none is open, provider_failed where it was lost (it is over then, and the books
  // are as before the begin), else a code of the provider with a text that says whether the transaction is still open.
  virtual void CommitTrans() = 0;

  // Takes back what was executed since the begin, and ends a transaction that was lost. Throws a RuntimeError: 3704 on
  // a closed connection, no_transaction where none is open, else a code of the provider with the engine's text.
  virtual void RollbackTrans() = 0;

  // 0 when the connection is closed, 1 when it is open.
  virtual Long State() const noexcept = 0;
};

using ConnectionReference = std::shared_ptr<Connection>;

// Hands a statement to a connection, and tells the host's hook, if it has set one. Throws what the connection throws;
// an error that doesn't name its statement gets this one.
Recordset send(Connection& connection, std::string_view statement, Road road);

// The same on a connection that may be unset, which is error 91. All but a bill's own statements take the session's
// road.
Recordset execute(const ConnectionReference& connection, std::string_view statement, Road road = Road::session);

}  // namespace brunvik::ado
