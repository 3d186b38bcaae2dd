// A host with a connection of its own: this one has no database and prints what would be sent to it. It links the
// library alone, no driver.
#include <iostream>

#include "brunvik/ado/connection.h"
#include "brunvik/warehouse/stock_adjustment.h"

namespace {

class PrintedStatements final : public brunvik::ado::Connection {
 public:
  brunvik::ado::Recordset Execute(std::string_view CommandText) override {
    std::cout << CommandText << '\n';
    if (CommandText.starts_with("select")) return {{"Id"}, {}};
    return {};
  }
  void BeginTrans() override { std::cout << "begin\n"; }
  void CommitTrans() override { std::cout << "commit\n"; }
  void RollbackTrans() override { std::cout << "rollback\n"; }
  brunvik::Long State() const noexcept override { return 1; }
};

}  // namespace

int main() {
  brunvik::clsTZBill adjustment;
  adjustment.ADOConn = std::make_shared<PrintedStatements>();
  adjustment.ID = "TZD24030500001";
  adjustment.Remarks = "O'Neil 的盘点";
  return adjustment.Save();
}
