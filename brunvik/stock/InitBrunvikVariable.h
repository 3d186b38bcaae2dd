// The start of a session:
//
//   InitBrunvikVariable start;
//   start.DATAType = sql_server_dialect;
//   start.OperatorId = "u1";
//   start.ADOConn = connection;
//   start.InitClase_PublicVariable();
//
// It stands beside the stock poster, since a session's start makes one.
#pragma once

#include <string>

#include "brunvik/ado/connection.h"
#include "brunvik/foundation/members.h"

namespace brunvik {

class InitBrunvikVariable final : public PublicObject {
 public:
  // sql_server_dialect or access_dialect. Any other text is taken as it is, and then dates have no quotes and no
  // number is worked out for a ledger row; since a text that is mistyped looks like one of the two, a notice tells it.
  std::string DATAType;
  std::string OperatorId;
  ado::ConnectionReference ADOConn;

  // Fills the session of this thread, and gives it a new stock poster. May be called again; it replaces everything.
  // Nothing happens at assignment. It has no error trap: what fails reaches the host.
  void InitClase_PublicVariable();

  const Members& members() const override;
};

}  // namespace brunvik
