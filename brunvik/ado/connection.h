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
  // Runs one statement and returns what it selects, whole; an empty closed set where it selects nothing. The statement
  // is durable by itself when the call returns. Throws a RuntimeError: 3704 on a closed connection, else a code of
  // the provider with the engine's own text and the statement; a failed statement has changed nothing.
  virtual Recordset Execute(std::string_view CommandText) = 0;

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
