// The values of a statement and its words are told apart.
#include <gtest/gtest.h>

#include "drivers/dialects/cutter.h"
#include "drivers/dialects/known_text.h"

namespace brunvik::dialects {
namespace {

TEST(CutterOfValues, Values_go_and_words_stay) {
  Cutter cutter;
  ASSERT_TRUE(cutter.cut("update T1 set A='x''y',B=-2.5,C=#2024-03-05# where t1.D=.5 and E2=1e-3"));
  EXPECT_EQ(cutter.shape(), "update T1 set A=\x01,B=-\x02,C=\x03 where t1.D=\x02 and E2=\x02");
  ASSERT_EQ(cutter.literals().size(), 5U);
  EXPECT_EQ(cutter.literals()[0].content, "x''y");
  EXPECT_TRUE(cutter.literals()[0].has_apostrophes);
  EXPECT_EQ(cutter.literals()[1].content, "2.5");
  EXPECT_EQ(cutter.literals()[2].content, "2024-03-05");
  EXPECT_EQ(cutter.literals()[4].content, "1e-3");
}

TEST(CutterOfValues, Literals_that_mean_more_than_a_value_stay) {
  Cutter cutter;
  ASSERT_TRUE(
      cutter.cut("select TOP 5 a,'b' from T where x LIKE 'c%' and y='d' and (z in (select 1 from U order by 2) "
                 "and v='e') ORDER BY 3 limit 4"));
  EXPECT_EQ(cutter.shape(),
            "select TOP 5 a,'b' from T where x LIKE 'c%' and y=\x01 and (z in (select 1 from U order by "
            "2) and v=\x01) ORDER BY 3 limit 4");
}

TEST(CutterOfValues, Statements_that_work_on_no_rows_are_left_alone) {
  Cutter cutter;
  EXPECT_FALSE(cutter.cut("create table T (a text default 'x')"));
  EXPECT_FALSE(cutter.cut("pragma synchronous=1"));
  EXPECT_FALSE(cutter.cut(""));
}

TEST(TextThatIsKnown, It_cuts_what_the_cutter_cuts) {
  Cutter cutter;
  cutter.cut("update stockbill set Remarks='',Amount=1.5,Status=0 where Id='JHR1'");
  const KnownText known(cutter.shape(), cutter.literals().size());
  ASSERT_NE(known.head(), 0U);
  const std::string_view again = "update stockbill set Remarks='a''b',Amount=7,Status=33 where Id=''";
  ASSERT_EQ(KnownText::head_of(again), known.head());
  std::vector<Literal> literals;
  ASSERT_TRUE(known.matches(again, literals));
  ASSERT_TRUE(cutter.cut(again));
  ASSERT_EQ(literals.size(), cutter.literals().size());
  for (std::size_t place = 0; place < literals.size(); ++place) {
    EXPECT_EQ(literals[place].content.data(), cutter.literals()[place].content.data());
    EXPECT_EQ(literals[place].content.size(), cutter.literals()[place].content.size());
    EXPECT_EQ(literals[place].kind, cutter.literals()[place].kind);
    EXPECT_EQ(literals[place].has_apostrophes, cutter.literals()[place].has_apostrophes);
  }
  EXPECT_FALSE(known.matches("update stockbill set Remarks=null,Amount=7,Status=33 where Id=''", literals));
  EXPECT_FALSE(known.matches("update stockbill set Remarks='a',Amount='7',Status=33 where Id=''", literals));
}

}  // namespace
}  // namespace brunvik::dialects
