// Texts that go to SQLite as they stand: its transactions, its settings and its tables are open to a host.
#include "tests/sqlite_books.h"

namespace brunvik::sqlite {
namespace {

class SqliteOwnTexts : public SqliteBooks {};

TEST_F(SqliteOwnTexts, What_a_connection_needs_for_itself_stays_open) {
  for (const char* statement :
       {"begin", "rollback", "begin immediate", "commit", "pragma page_count", "explain query plan select ID from ZHXX",
        "create table T1 (a TEXT not null)", "create index T1_a on T1 (a)", "drop table T1"}) {
    EXPECT_EQ(error_of(*books, statement), 0) << statement;
  }
}

}  // namespace
}  // namespace brunvik::sqlite
