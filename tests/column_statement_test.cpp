#include "brunvik/foundation/column_statement.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/error_number.h"
#include "tests/support/sample.h"

namespace brunvik {
namespace {

using test::error_number;
using test::Sample;

Sample sample() {
  Sample object;
  object.ID = "QTR1";
  object.Status = 9;
  object.Rate = 0.5F;
  object.Amount = Money::parse("12.5");
  object.Flag = true;
  return object;
}

TEST(Insert, Gives_each_column_the_value_of_its_property) {
  const Insert insert(Sample::table(), {}, "insert into T(Amount,Id,CreateFlag,TaxRate) values(");
  EXPECT_EQ(insert.text(sample()), "insert into T(Amount,Id,CreateFlag,TaxRate) values(12.5,'QTR1',1,0.5)");
}

TEST(Insert, Finds_a_column_without_regard_to_case_and_leaves_its_spelling) {
  const Insert insert(Sample::table(), {}, "insert into T(ID, amount) values(");
  EXPECT_EQ(insert.text(sample()), "insert into T(ID, amount) values('QTR1',12.5)");
}

TEST(Insert, A_column_may_have_another_source_than_its_own_property) {
  const Insert insert(Sample::table(),
                      {constant("Kind", 6), constant("InOutFlag", 1), argument("Status"), from("TaxRate", "Amount")},
                      "insert into T(Kind,InOutFlag,Status,TaxRate) values(");
  EXPECT_EQ(insert.text(sample(), 2), "insert into T(Kind,InOutFlag,Status,TaxRate) values(6,1,2,12.5)");
}

TEST(Insert, A_column_may_be_worked_out_of_the_object) {
  const Insert insert(
      Sample::table(),
      {worked_out("Kind",
                  [](const PublicObject& object) -> Value { return dynamic_cast<const Sample&>(object).Status; })},
      "insert into T(Id,Kind) values(");
  EXPECT_EQ(insert.text(sample()), "insert into T(Id,Kind) values('QTR1',9)");
  EXPECT_EQ(insert.members_written().size(), 1U);
}

TEST(Insert, What_stands_in_brackets_belongs_to_the_audited_form) {
  const Insert insert(Sample::table(), {argument("Status")}, "insert into T(Id,[Amount,TaxRate,]Status) values(");
  EXPECT_EQ(insert.text(sample(), 3), "insert into T(Id,Amount,TaxRate,Status) values('QTR1',12.5,0.5,3)");
  for (const Long status : {0, 1, 2, 4}) {
    EXPECT_EQ(insert.text(sample(), status), "insert into T(Id,Status) values('QTR1'," + std::to_string(status) + ")");
  }
}

TEST(Insert, Behind_a_bar_stands_what_the_other_form_has) {
  const Insert insert(Sample::table(), {}, "insert into T([amount|Amount],Id[|,Kind]) values(");
  EXPECT_EQ(insert.text(sample(), 3), "insert into T(amount,Id) values(12.5,'QTR1')");
  EXPECT_EQ(insert.text(sample(), 2), "insert into T(Amount,Id,Kind) values(12.5,'QTR1',0)");
}

TEST(Insert, Writes_a_computed_property) {
  const Insert insert(Sample::table(), {}, "insert into T(ClosedTag) values(");
  EXPECT_EQ(insert.text(sample()), "insert into T(ClosedTag) values(0)");
}

TEST(Insert, A_name_that_is_no_column_of_the_class_is_refused_when_the_text_is_taken_apart) {
  EXPECT_EQ(error_number([] { Insert(Sample::table(), {}, "insert into T(Id,Nothing) values("); }), 3265);
  EXPECT_EQ(error_number([] { Insert(Sample::table(), {}, "insert into T(Hidden) values("); }), 3265);
  EXPECT_EQ(error_number([] { Insert(Sample::table(), {}, "insert into T(Id,[Nothing,]Amount) values("); }), 3265);
  EXPECT_EQ(error_number([] { Insert(Sample::table(), {from("Id", "Nobody")}, "insert into T(Id) values("); }), 438);
}

TEST(Insert, Knows_the_properties_that_it_writes) {
  const Insert insert(Sample::table(), {constant("InOutFlag", 1), from("TaxRate", "Amount")},
                      "insert into T(Id,InOutFlag,TaxRate,[Kind,]Amount) values(");
  std::vector<std::string> names;
  for (const Member* member : insert.members_written()) names.emplace_back(member->name());
  EXPECT_EQ(names, (std::vector<std::string>{"ID", "Rate", "Amount"}));
}

TEST(Update, Puts_each_value_behind_its_column_and_the_key_at_the_end) {
  const Update update(Sample::table(), {argument("Status")},
                      "update T set Amount = ,status = ,TaxRate=,CreateFlag =  where Id=");
  EXPECT_EQ(update.text(sample(), 2),
            "update T set Amount = 12.5,status = 2,TaxRate=0.5,CreateFlag = 1 where Id='QTR1'");
}

TEST(Update, Has_an_audited_form_too) {
  const Update update(Sample::table(), {argument("Status")},
                      "update T set [Amount = ,status = ,]TaxRate = ,[|status = ,]CreateFlag =  where Id=");
  EXPECT_EQ(update.text(sample(), 3),
            "update T set Amount = 12.5,status = 3,TaxRate = 0.5,CreateFlag = 1 where Id='QTR1'");
  EXPECT_EQ(update.text(sample(), 1), "update T set TaxRate = 0.5,status = 1,CreateFlag = 1 where Id='QTR1'");
}

TEST(Update, A_value_cannot_reach_into_the_statement) {
  const Update update(Sample::table(), {}, "update T set Amount =  where Id=");
  Sample object = sample();
  object.ID = "',Amount = 0 where ''='";
  EXPECT_EQ(update.text(object), "update T set Amount = 12.5 where Id=''',Amount = 0 where ''''='''");
}

}  // namespace
}  // namespace brunvik
