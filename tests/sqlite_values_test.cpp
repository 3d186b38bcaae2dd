// Whatever a value holds, it comes back as it went in, and the statement has the shape that its author wrote.
#include <random>

#include "tests/sqlite_books.h"

namespace brunvik::sqlite {
namespace {

std::string literal_of(std::string_view text) {
  std::string literal = "'";
  for (const char c : text) {
    literal += c;
    if (c == '\'') literal += c;
  }
  return literal + "'";
}

class SqliteValues : public SqliteBooks {};

TEST_F(SqliteValues, Nothing_in_a_value_ends_its_literal) {
  const std::string hostile[] = {
      "\\",
      "\\'",
      "'",
      "''",
      "'''",
      "\"",
      "`",
      ";",
      "'; delete from Warehouse; --",
      "--",
      "/*",
      "*/",
      "?",
      "?1",
      "@x",
      ":x",
      "$x",
      "#",
      "#2024-03-05#",
      "[",
      "]",
      "[_]",
      "%",
      "_",
      "{}",
      "\t",
      "\r\n",
      "\x01",
      "\x02\x03",
      "中文",
      "\xff",
      "null",
      "TOP 1",
      "x' or 'x'='x",
      std::string("a\0b", 3),
      std::string("\0", 1),
      std::string(100'000, '\''),
      "",
  };
  for (const std::string& value : hostile) {
    run("delete from Warehouse");
    run("insert into Warehouse(Id,WName) values('W1'," + literal_of(value) + ")");
    EXPECT_EQ(text("select WName from Warehouse where Id='W1'"), value);
    EXPECT_EQ(count("select count(*) from Warehouse where WName=" + literal_of(value)), 1) << value;
    run("update Warehouse set WName='x',Id=" + literal_of(value + "1"));
    EXPECT_EQ(text("select Id from Warehouse where WName='x'"), value + "1");
  }
}

TEST_F(SqliteValues, Random_bytes_come_back_and_leave_one_shape) {
  std::mt19937 random(3);
  const std::string_view bytes = "'\"\\;-/*?@:$#[]%_ \t\n\x01\x02\x03 aA0中";
  run("begin");
  run("insert into Warehouse(Id,WName) values('W','')");
  run("update Warehouse set WName='a' where Id='W'");
  const std::size_t shapes = books->cached_statements();
  for (int time = 0; time < 3'000; ++time) {
    std::string value(random() % 40, ' ');
    for (char& c : value) c = random() % 4 == 0 ? static_cast<char>(random() % 256) : bytes[random() % bytes.size()];
    run("update Warehouse set WName=" + literal_of(value) + " where Id='W'");
    ado::Recordset set = books->Execute("select WName from Warehouse where Id='W'");
    ASSERT_EQ(set.record_count(), 1U);
    EXPECT_EQ(set.value("WName").as_text(), value);
  }
  EXPECT_EQ(books->cached_statements(), shapes + 1);
  run("commit");
}

TEST_F(SqliteValues, Random_texts_are_carried_out_or_refused_and_never_anything_else) {
  std::mt19937 random(4);
  const std::string_view pieces[] = {"select ",
                                     "insert into ",
                                     "update ",
                                     "delete from ",
                                     "ZHXX",
                                     "(",
                                     ")",
                                     ",",
                                     "YE",
                                     "ID",
                                     " set ",
                                     " where ",
                                     "=",
                                     "'a'",
                                     "1.5",
                                     "-",
                                     "+",
                                     "*",
                                     "/",
                                     " top 1 ",
                                     " like ",
                                     "'a%'",
                                     "'[a]%'",
                                     " in ",
                                     " values",
                                     "sum(",
                                     " from ",
                                     " order by ",
                                     " as ",
                                     "null",
                                     "#2024-03-05#",
                                     "[YE]",
                                     "'",
                                     ";",
                                     ".",
                                     "convert(int,",
                                     " union ",
                                     " case ",
                                     " end ",
                                     " group by ",
                                     " distinct ",
                                     " with ",
                                     "\x01",
                                     " and ",
                                     " not "};
  run("insert into ZHXX(ID,YE) values('a',1)");
  for (int time = 0; time < 20'000; ++time) {
    std::string statement(pieces[random() % 4]);
    for (auto length = random() % 14; length != 0; --length) statement += pieces[random() % std::size(pieces)];
    try {
      run(statement);
    } catch (const ado::RuntimeError& failure) {
      EXPECT_NE(failure.number(), 0);
    }
  }
  EXPECT_EQ(run("select * from ZHXX").State(), 1);
}

TEST_F(SqliteValues, Many_values_are_bound_in_their_order) {
  std::string list;
  for (int number = 1; number <= 5'000; ++number) list += (number == 1 ? "" : ",") + std::to_string(number);
  EXPECT_EQ(count("select count(*) from StockBill where 5000 in (" + list + ")"), 0);
  run("insert into StockBill(Id,Type) values('B1',4999)");
  EXPECT_EQ(count("select count(*) from StockBill where Type in (" + list + ")"), 1);
  EXPECT_EQ(count("select count(*) from StockBill where Type not in (" + list + ")"), 0);
}

TEST_F(SqliteValues, Whole_numbers_keep_their_digits) {
  EXPECT_EQ(value("select count(*) from StockBill where 9223372036854775807=9223372036854775806"), ado::Value(Long{0}));
  run("insert into StockBill(Id,Type) values('B1',-2147483648)");
  EXPECT_EQ(value("select Type from StockBill where Type=-2147483648"), ado::Value(Long{INT32_MIN}));
  run("update StockBill set Type=007");
  EXPECT_EQ(value("select Type from StockBill"), ado::Value(Long{7}));
}

}  // namespace
}  // namespace brunvik::sqlite
