// The Session Globals: what the host handed over at the start of its session.
//
// They exist once for each thread (an apartment): a host with one thread sees one session. InitBrunvikVariable fills
// them; the module procedures and the stock poster read them, bills never do.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "brunvik/ado/connection.h"

namespace brunvik {

class StockPoster;

inline namespace Brunvik_Variable {

struct SessionGlobals {
  // The database dialect, one of the two texts below; any other text is no dialect.
  std::string DATAType;

  ado::ConnectionReference ADOConn;

  // The operator who is logged in, as ledger rows name him.
  std::string OperatorId;

  std::shared_ptr<brunvik::StockPoster> StockPoster;
};

SessionGlobals& session() noexcept;

inline constexpr std::string_view sql_server_dialect = "[Microsoft SQL Server]";
inline constexpr std::string_view access_dialect = "[Microsoft Access]";

}  // namespace Brunvik_Variable

}  // namespace brunvik
