// A host that watches the wire: it prints each statement with the road that it took, its time and its outcome, and at
// the end what the number of a verb that failed stands for.
#include <iostream>

#include "brunvik/brunvik.h"
#include "drivers/sqlite/connection.h"
#include "schema/ddl.h"

using namespace brunvik;

int main() {
  const auto books = sqlite::open(":memory:");
  for (const auto& statement : schema::statements(schema::Engine::sqlite)) books->Execute(statement);
  ado::set_statement_hook([](const ado::SentStatement& sent) {
    std::cout << name_of(sent.road) << ", " << sent.microseconds << " us, " << sent.outcome << ": " << sent.text
              << '\n';
  });

  InitBrunvikVariable start;
  start.DATAType = sql_server_dialect;
  start.ADOConn = books;
  start.InitClase_PublicVariable();

  clsTZBill adjustment;
  adjustment.ADOConn = books;
  adjustment.GetNewId(adjustment.ID);
  adjustment.Save();

  // The host's own statements are its own, and aren't shown.
  books->Execute("drop table StockBill");
  if (adjustment.Save() != 0) std::cout << last_failure().number << ": " << last_failure().text << '\n';
}
