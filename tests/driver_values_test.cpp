// Whatever a value holds, it comes back as it went in, and the statement has the shape that its author wrote.
#include <random>

#include "tests/support/driver_books.h"

namespace brunvik::test {
namespace {

class DriverValues : public DriverBooks {};

TEST_P(DriverValues, Nothing_in_a_value_ends_its_literal) {
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
    if (value.size() > 100) continue;  // no number of a bill is as long as that
    run("update Warehouse set WName='x',Id=" + literal_of(value + "1"));
    EXPECT_EQ(text("select Id from Warehouse where WName='x'"), value + "1");
  }
}

TEST_P(DriverValues, Random_texts_come_back_and_leave_one_shape) {
  std::mt19937 random(3);
  const std::string_view characters[] = {"'",    "\"",   "\\", ";", "-", "/",  "*", "?",  "@",  ":",
                                         "$",    "#",    "[",  "]", "%", "_",  " ", "\t", "\n", "\x01",
                                         "\x02", "\x03", "a",  "A", "0", "中", "é", "𠀀"};
  books->BeginTrans();
  run("insert into Warehouse(Id,WName) values('W','')");
  run("update Warehouse set WName='a' where Id='W'");
  EXPECT_EQ(text("select WName from Warehouse where Id='W'"), "a");
  const std::size_t shapes = cached_statements();
  for (int time = 0; time < 3'000; ++time) {
    std::string value;
    for (auto length = random() % 40; length != 0; --length) value += characters[random() % std::size(characters)];
    run("update Warehouse set WName=" + literal_of(value) + " where Id='W'");
    ado::Recordset set = run("select WName from Warehouse where Id='W'");
    ASSERT_EQ(set.record_count(), 1U);
    EXPECT_EQ(set.value("WName").as_text(), value);
  }
  EXPECT_EQ(cached_statements(), shapes);
  books->CommitTrans();
}

// An engine may want its texts in their encoding; it says so then, and the row is what it was.
TEST_P(DriverValues, Random_bytes_come_back_or_are_refused) {
  std::mt19937 random(3);
  const std::string_view bytes = "'\"\\;-/*?@:$#[]%_ \t\n\x01\x02\x03 aA0中";
  run("insert into Warehouse(Id,WName) values('W','')");
  run("insert into Warehouse(Id,WName) values('V','untouched')");
  std::string stored;
  std::size_t kept = 0;
  for (int time = 0; time < 1'000; ++time) {
    std::string value(random() % 20, ' ');
    for (char& c : value)
      c = random() % 8 == 0 ? static_cast<char>(random() % 256) : bytes[random() % (bytes.size() - 3)];
    const Long error = error_of(*books, "update Warehouse set WName=" + literal_of(value) + " where Id='W'");
    if (error == 0) {
      stored = value;
      ++kept;
    } else {
      EXPECT_EQ(error, ado::error::constraint_violated) << testing::PrintToString(value);
    }
    ASSERT_EQ(text("select WName from Warehouse where Id='W'"), stored);
  }
  EXPECT_GT(kept, 100U);
  EXPECT_EQ(text("select WName from Warehouse where Id='V'"), "untouched");
}

TEST_P(DriverValues, Random_texts_are_carried_out_or_refused_and_never_anything_else) {
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

TEST_P(DriverValues, Twelve_megabytes_of_text_come_back) {
  std::string remarks;
  while (remarks.size() < 12'000'000) remarks += "主仓 O'Neil 𠀀\\ ";
  run("insert into Warehouse(Id,WName) values('W1'," + literal_of(remarks) + ")");
  EXPECT_TRUE(text("select WName from Warehouse where Id='W1'") == remarks);
  EXPECT_EQ(count("select count(*) from Warehouse where WName=" + literal_of(remarks)), 1);
}

TEST_P(DriverValues, A_character_of_four_bytes_is_one_character) {
  run("insert into Warehouse(Id,WName) values('𠀀1','𠀀𠀁😀')");
  EXPECT_EQ(text("select WName from Warehouse where Id='𠀀1'"), "𠀀𠀁😀");
  EXPECT_EQ(count("select count(*) from Warehouse where Id='𠀁1'"), 0);
  EXPECT_EQ(count("select count(*) from Warehouse where WName like '_𠀁_'"), 1);
  EXPECT_EQ(count("select count(*) from Warehouse where WName like '𠀀%'"), 1);
}

TEST_P(DriverValues, A_value_of_the_wrong_type_is_refused) {
  for (const char* assignment : {"Type='five'", "PaidAmount='much'", "TaxRate='high'", "ClosedTag=''"}) {
    run("delete from StockBill");
    run("insert into StockBill(Id,Type) values('B1',2)");
    EXPECT_EQ(error_of(*books, std::string("update StockBill set ") + assignment), ado::error::constraint_violated)
        << assignment;
    EXPECT_EQ(count("select Type from StockBill"), 2);
  }
}

TEST_P(DriverValues, Many_values_are_bound_in_their_order) {
  std::string list;
  for (int number = 1; number <= 5'000; ++number) list += (number == 1 ? "" : ",") + std::to_string(number);
  EXPECT_EQ(count("select count(*) from StockBill where 5000 in (" + list + ")"), 0);
  run("insert into StockBill(Id,Type) values('B1',4999)");
  EXPECT_EQ(count("select count(*) from StockBill where Type in (" + list + ")"), 1);
  EXPECT_EQ(count("select count(*) from StockBill where Type not in (" + list + ")"), 0);
}

TEST_P(DriverValues, Whole_numbers_keep_their_digits) {
  EXPECT_EQ(value("select count(*) from StockBill where 9223372036854775807=9223372036854775806"), ado::Value(Long{0}));
  run("insert into StockBill(Id,Type) values('B1',-2147483648)");
  EXPECT_EQ(value("select Type from StockBill where Type=-2147483648"), ado::Value(Long{INT32_MIN}));
  run("update StockBill set Type=007");
  EXPECT_EQ(value("select Type from StockBill"), ado::Value(Long{7}));
}

INSTANTIATE_TEST_SUITE_P(On, DriverValues, ::testing::ValuesIn(driver_engines()), by_engine);

}  // namespace
}  // namespace brunvik::test
