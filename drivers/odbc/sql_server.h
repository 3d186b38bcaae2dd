// SQL Server, in whose words the statements of one dialect were written.
#pragma once

#include <string>
#include <string_view>

#include "drivers/odbc/server.h"

namespace brunvik::odbc {

inline constexpr std::string_view sql_server_name = "Microsoft SQL Server";

// A statement as it stands, but for two minus signs outside of its literals, which would open a comment and end the
// statement in front of its condition: they are set apart.
std::string with_minus_signs_apart(std::string_view statement);

class SqlServer final : public Server {
 public:
  SqlServer(Link link, const Options& options);

  ado::Recordset execute(std::string_view statement) override;
  void begin() override;
  void commit() override;
  void roll_back() override;
  ado::Recordset tables() override;
  std::string_view name() const noexcept override { return sql_server_name; }
};

}  // namespace brunvik::odbc
