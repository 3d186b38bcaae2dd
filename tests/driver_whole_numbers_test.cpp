// A column of whole numbers takes what its declared width holds, and refuses the rest as an overflow.
#include "tests/support/driver_books.h"

namespace brunvik::test {
namespace {

class DriverWholeNumbers : public DriverBooks {
 protected:
  DriverWholeNumbers() {
    static constexpr schema::Column widths[] = {{"Id", schema::Type::Key},
                                                {"B", schema::Type::Byte},
                                                {"I", schema::Type::Integer},
                                                {"L", schema::Type::Long},
                                                {"T", schema::Type::Boolean}};
    lay({"Widths", widths, "Id"});
    run("insert into Widths(Id,B,I,L,T) values('a',1,1,1,1)");
  }

  void expect_taken(const std::string& column, const std::string& number, const std::string& kept) {
    run("update Widths set " + column + "=" + number);
    EXPECT_EQ(text("select " + column + " from Widths"), kept) << column << "=" << number;
  }

  void expect_overflow(const std::string& column, const std::string& number) {
    run("update Widths set " + column + "=1");
    EXPECT_EQ(error_of(*books, "update Widths set " + column + "=" + number), ado::error::data_overflow)
        << column << "=" << number;
    const std::string insert = "insert into Widths(Id," + column + ") ";
    EXPECT_EQ(error_of(*books, insert + "select 'b'," + number + " from Widths"), ado::error::data_overflow) << number;
    if (number.find_first_of("BIL") == std::string::npos) {
      EXPECT_EQ(error_of(*books, insert + "values('b'," + number + ")"), ado::error::data_overflow) << number;
    }
    EXPECT_EQ(text("select " + column + " from Widths"), "1") << column << "=" << number;
  }
};

TEST_P(DriverWholeNumbers, The_ends_of_each_width_are_taken) {
  expect_taken("B", "0", "0");
  expect_taken("B", "255", "255");
  expect_taken("B", "-0", "0");
  expect_taken("I", "-32768", "-32768");
  expect_taken("I", "'32767'", "32767");
  expect_taken("I", "'-32768'", "-32768");
  expect_taken("L", "-2147483648", "-2147483648");
  expect_taken("L", "+2147483647", "2147483647");
  expect_taken("L", "2147483646+1", "2147483647");
  expect_taken("L", "null", "");
  expect_taken("L", "1-null", "");
}

TEST_P(DriverWholeNumbers, What_lies_beyond_them_is_an_overflow) {
  for (const char* number : {"256", "-1", "'256'", "'-1'", "'-1 '", "1e3", "128+128", "I-2", "-B"}) {
    expect_overflow("B", number);
  }
  for (const char* number : {"40000", "-32769", "'40000'", "32768", "- -40000", "I+40000", "1e300"}) {
    expect_overflow("I", number);
  }
  for (const char* number : {"3000000000", "2147483648", "-2147483649", "'3000000000'", "99999999999999999999",
                             "-99999999999999999999", "L*3000000000", "(select 3000000000)"}) {
    expect_overflow("L", number);
  }
}

TEST_P(DriverWholeNumbers, A_wider_column_is_looked_at_before_a_narrower_one_takes_its_value) {
  run("update Widths set L=70000");
  EXPECT_EQ(error_of(*books, "update Widths set I=L"), ado::error::data_overflow);
  run("update Widths set L=I");
  EXPECT_EQ(count("select L from Widths"), 1);
}

TEST_P(DriverWholeNumbers, What_is_no_number_is_refused_by_the_column) {
  EXPECT_EQ(error_of(*books, "update Widths set L='abc'"), ado::error::constraint_violated);
  EXPECT_EQ(error_of(*books, "update Widths set L='abc'||''"), ado::error::constraint_violated);
}

TEST_P(DriverWholeNumbers, A_quotient_of_whole_numbers_is_whole) {
  expect_taken("L", "7/2", "3");
  expect_taken("L", "-7/ 2", "-3");
  EXPECT_EQ(count("select count(*) from Widths where 7/2=3"), 1);
}

TEST_P(DriverWholeNumbers, A_condition_may_ask_for_any_number) {
  EXPECT_EQ(count("select count(*) from Widths where L=3000000000"), 0);
  EXPECT_EQ(count("select count(*) from Widths where B>-1"), 1);
}

INSTANTIATE_TEST_SUITE_P(On, DriverWholeNumbers, ::testing::ValuesIn(driver_engines()), by_engine);

}  // namespace
}  // namespace brunvik::test
