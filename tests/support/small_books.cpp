#include "tests/support/small_books.h"

namespace brunvik::test {

namespace {

using schema::Column;
using schema::Table;
using schema::Type;

constexpr Column bill[] = {{"Id", Type::Key},
                           {"Type", Type::Long},
                           {"Status", Type::Long},
                           {"Auditor", Type::Text},
                           {"AuditTime", Type::Date},
                           {"PaidAmount", Type::Money, "0"},
                           {"CloseAmount", Type::Money, "0"},
                           {"AdvanceAmount", Type::Money, "0"},
                           {"ClosedTag", Type::Long, "0"},
                           {"CreateFlag", Type::Boolean},
                           {"TaxRate", Type::Single},
                           {"Remarks", Type::Memo}};
constexpr std::string_view indexes_of_bills[] = {"Type"};

constexpr Column bill_row[] = {{"BillId", Type::Key},   {"RowNum", Type::Integer}, {"GId", Type::Key},
                               {"Qty", Type::Single},   {"Price", Type::Money},    {"Amount", Type::Money},
                               {"Receiver", Type::Key}, {"Remarks", Type::Memo}};
constexpr std::string_view indexes_of_rows[] = {"BillId"};

constexpr Column warehouse[] = {{"Id", Type::Key}, {"WName", Type::Memo}};

constexpr Column account[] = {{"ID", Type::Key}, {"ZH", Type::Text}, {"KHH", Type::Text}, {"YE", Type::Money, "0"}};

constexpr Table tables[] = {{"StockBill", bill, "Id", indexes_of_bills},
                            {"StockBillItems", bill_row, "", indexes_of_rows},
                            {"Warehouse", warehouse, "Id"},
                            {"ZHXX", account, "ID"}};

}  // namespace

std::span<const schema::Table> small_tables() { return tables; }

void lay(ado::Connection& books, schema::Engine engine, std::span<const schema::Table> tables) {
  for (const std::string& statement : schema::statements(engine, tables)) books.Execute(statement);
}

}  // namespace brunvik::test
