// Objects by name, their properties and their rows.
#include "tests/host_conversation.h"

namespace brunvik::host {
namespace {

using HostObjects = HostTest;

TEST_F(HostObjects, Every_answer_begins_with_the_number_of_its_line) {
  EXPECT_EQ(interpreter.answer(R"({"do":"new","as":"b","class":"clsOthersInBill"})"), R"({"line":1,"ok":true})");
  EXPECT_EQ(interpreter.answer(R"({"do":"put","on":"b","values":{"ID":"QTR24030500001","RManager":"u1"}})"),
            R"({"line":2,"ok":true})");
  EXPECT_EQ(interpreter.answer(R"({"do":"get","on":"b","names":["ID","Status"]})"),
            R"({"line":3,"values":{"ID":"QTR24030500001","Status":0}})");
}

TEST_F(HostObjects, A_refused_line_is_answered_and_the_run_goes_on) {
  EXPECT_EQ(interpreter.answer(R"({"do":"new","as":"b","class":"clsNone"})"),
            R"({"line":1,"error":{"number":429,"description":"部件不能创建对象: clsNone"}})");
  EXPECT_EQ(interpreter.answer(R"({"do":"get","on":"b"})"),
            R"({"line":2,"error":{"number":424,"description":"要求对象: b"}})");
  EXPECT_EQ(interpreter.answer(R"({"do":"new","as":"b","class":"clsothersinbill"})"), R"({"line":3,"ok":true})");
}

TEST_F(HostObjects, A_name_in_use_is_given_to_the_new_object) {
  said(R"({"do":"new","as":"b","class":"clsOthersInBill"})");
  said(R"({"do":"put","on":"b","values":{"ID":"QTR24030500001"}})");
  said(R"({"do":"new","as":"b","class":"clsPayBill"})");
  EXPECT_EQ(said(R"({"do":"get","on":"b","names":["ID","Payer"]})"), R"({"values":{"ID":"","Payer":0}})");
}

TEST_F(HostObjects, A_class_that_does_not_exist_leaves_the_object_under_the_name) {
  said(R"({"do":"new","as":"b","class":"clsOthersInBill"})");
  EXPECT_EQ(refused(R"({"do":"new","as":"b","class":"clsNone"})"), 429);
  EXPECT_EQ(refused(R"({"do":"get","on":"b"})"), 0);
}

TEST_F(HostObjects, All_properties_but_objects_and_collections_come_in_their_public_order) {
  said(R"({"do":"new","as":"b","class":"clsOthersInBill"})");
  EXPECT_EQ(said(R"({"do":"get","on":"b"})"),
            R"({"values":{"ID":"","Manualid":"","RManager":"","Creator":"","Createtime":"","Auditor":"",)"
            R"("Audittime":"","Status":0,"Paidamount":"0","BillCost":"0","Referflag":0,"Summary":"","Remarks":""}})");
}

TEST_F(HostObjects, Names_of_members_are_case_blind_and_come_back_as_they_were_asked) {
  said(R"({"do":"new","as":"b","class":"clsOthersInBill"})");
  said(R"({"do":"put","on":"b","values":{"id":"Q","REMARKS":"备注"}})");
  EXPECT_EQ(said(R"({"do":"get","on":"b","names":["Id","remarks"]})"), R"({"values":{"Id":"Q","remarks":"备注"}})");
}

TEST_F(HostObjects, What_no_member_has_or_takes_is_refused) {
  said(R"({"do":"new","as":"b","class":"clsOthersInBill"})");
  EXPECT_EQ(refused(R"({"do":"put","on":"b","values":{"Nothing":1}})"), 438);
  EXPECT_EQ(refused(R"({"do":"get","on":"b","names":["Nothing"]})"), 438);
  EXPECT_EQ(refused(R"({"do":"get","on":"b","names":["Save"]})"), 438);
  EXPECT_EQ(refused(R"({"do":"put","on":"b","values":{"Save":1}})"), 438);
  EXPECT_EQ(refused(R"({"do":"put","on":"b","values":{"Status":"two"}})"), 13);
  EXPECT_EQ(refused(R"({"do":"put","on":"b","values":{"Status":[2]}})"), 13);
  EXPECT_EQ(refused(R"({"do":"put","on":"b","values":{"Status":{"number":2}}})"), 13);
  EXPECT_EQ(refused(R"({"do":"put","on":"b","values":[1]})"), 13);
  EXPECT_EQ(refused(R"({"do":"put","on":"b"})"), 450);
  EXPECT_EQ(refused(R"({"do":"put","on":1,"values":{}})"), 13);
  EXPECT_EQ(refused(R"({"do":"get","on":"b","names":"ID"})"), 13);
  EXPECT_EQ(refused(R"({"do":"rows","on":"b","rows":"ID"})"), 438);
  said(R"({"do":"new","as":"p","class":"clsPurchaseInBill"})");
  EXPECT_EQ(refused(R"({"do":"put","on":"p","values":{"Closedtag":true}})"), 438);
}

TEST_F(HostObjects, A_refused_value_leaves_the_values_beside_it_as_they_were) {
  said(R"({"do":"new","as":"b","class":"clsOthersInBill"})");
  said(R"({"do":"put","on":"b","values":{"ID":"Q","Status":2}})");
  EXPECT_EQ(said(R"({"do":"put","on":"b","values":{"ID":"R","Status":3,"Paidamount":"much"}})"),
            R"({"error":{"number":13,"description":"类型不匹配: Paidamount"}})");
  EXPECT_EQ(said(R"({"do":"get","on":"b","names":["ID","Status"]})"), R"({"values":{"ID":"Q","Status":2}})");
}

TEST_F(HostObjects, Rows_are_added_edited_shown_and_cleared) {
  said(R"({"do":"new","as":"v","class":"clsPayBill"})");
  EXPECT_EQ(said(R"({"do":"add","on":"v","rows":"colRPBItems","row":{"BID":"F1","Rownum":1,"Amount":"10.5"}})"),
            R"({"count":1})");
  EXPECT_EQ(said(R"({"do":"add","on":"v","rows":"COLRPBITEMS"})"), R"({"count":2})");
  EXPECT_EQ(said(R"({"do":"edit","on":"v","rows":"colRPBItems","at":2,"row":{"kh":"62","amount":0.1}})"),
            R"({"count":2})");
  EXPECT_EQ(said(R"({"do":"rows","on":"v","rows":"colRPBItems"})"),
            R"({"rows":[{"BID":"F1","Rownum":1,"MeansOfPayment":0,"kh":"","Amount":"10.5","Remarks":""},)"
            R"({"BID":"","Rownum":0,"MeansOfPayment":0,"kh":"62","Amount":"0.1","Remarks":""}]})");
  EXPECT_EQ(said(R"({"do":"clear","on":"v","rows":"colRPBItems"})"), R"({"count":0})");
  EXPECT_EQ(said(R"({"do":"rows","on":"v","rows":"colRPBItems"})"), R"({"rows":[]})");
}

class HostRows : public HostTest {
 protected:
  HostRows() {
    said(R"({"do":"new","as":"v","class":"clsPayBill"})");
    for (const char* amount : {"1", "2", "3"}) add(std::string(R"("row":{"Amount":)") + amount + "}");
  }

  std::string add(const std::string& what) {
    return said(R"({"do":"add","on":"v","rows":"colRPBItems",)" + what + "}");
  }
  std::string remove(const std::string& at) {
    return said(R"({"do":"remove","on":"v","rows":"colRPBItems","at":)" + at + "}");
  }

  std::string amounts() {
    std::string all;
    const Json answered = answer(R"({"do":"rows","on":"v","rows":"colRPBItems"})");
    for (const Json& row : answered.at("rows")) {
      all += row.at("Amount").get<std::string>() + " ";
    }
    return all;
  }
};

TEST_F(HostRows, Any_of_them_can_be_removed) {
  EXPECT_EQ(remove("2"), R"({"count":2})");
  EXPECT_EQ(amounts(), "1 3 ");
  EXPECT_EQ(remove("2"), R"({"count":1})");
  EXPECT_EQ(remove("1"), R"({"count":0})");
}

TEST_F(HostRows, One_can_be_added_in_front_of_another_or_at_the_end) {
  EXPECT_EQ(add(R"("at":2,"row":{"Amount":"1.5"})"), R"({"count":4})");
  EXPECT_EQ(add(R"("at":5,"row":{"Amount":"4"})"), R"({"count":5})");
  EXPECT_EQ(add(R"("at":1)"), R"({"count":6})");
  EXPECT_EQ(amounts(), "0 1 1.5 2 3 4 ");
}

TEST_F(HostRows, Stay_as_they_are_for_a_position_outside_of_them) {
  EXPECT_EQ(remove("4"), R"({"error":{"number":9,"description":"下标越界: 4"}})");
  EXPECT_EQ(remove("0"), R"({"error":{"number":9,"description":"下标越界: 0"}})");
  EXPECT_EQ(remove("-1"), R"({"error":{"number":9,"description":"下标越界: -1"}})");
  EXPECT_EQ(add(R"("at":5)"), R"({"error":{"number":9,"description":"下标越界: 5"}})");
  EXPECT_EQ(add(R"("at":0)"), R"({"error":{"number":9,"description":"下标越界: 0"}})");
  EXPECT_EQ(refused(R"({"do":"add","on":"v","rows":"colRPBItems","at":"2"})"), 13);
  EXPECT_NE(refused(R"({"do":"remove","on":"v","rows":"colRPBItems"})"), 0);
  EXPECT_EQ(amounts(), "1 2 3 ");
}

TEST_F(HostRows, One_that_is_refused_leaves_no_gap_where_it_was_to_stand) {
  EXPECT_NE(add(R"("at":2,"row":{"Amount":"much"})").find("\"number\":13"), std::string::npos);
  EXPECT_EQ(amounts(), "1 2 3 ");
}

TEST_F(HostObjects, A_refused_row_is_not_added) {
  said(R"({"do":"new","as":"b","class":"clsOthersInBill"})");
  said(R"({"do":"add","on":"b","rows":"colBillItems","row":{"Gid":"G1","Qty":0.1,"price":"1.0001"}})");
  const std::string before = said(R"({"do":"rows","on":"b","rows":"colBillItems"})");
  EXPECT_EQ(refused(R"({"do":"add","on":"b","rows":"colBillItems","row":{"Gid":"G2","Qty":"many"}})"), 13);
  EXPECT_EQ(refused(R"({"do":"edit","on":"b","rows":"colBillItems","at":1,"row":{"Gid":"G2","None":1}})"), 438);
  EXPECT_EQ(said(R"({"do":"rows","on":"b","rows":"colBillItems"})"), before);
}

TEST_F(HostObjects, A_row_that_is_not_there_cannot_be_edited) {
  said(R"({"do":"new","as":"b","class":"clsOthersInBill"})");
  said(R"({"do":"add","on":"b","rows":"colBillItems"})");
  EXPECT_EQ(refused(R"({"do":"edit","on":"b","rows":"colBillItems","at":2,"row":{}})"), 9);
  EXPECT_EQ(refused(R"({"do":"edit","on":"b","rows":"colBillItems","at":0,"row":{}})"), 9);
  EXPECT_EQ(refused(R"({"do":"edit","on":"b","rows":"colBillItems","at":-1,"row":{}})"), 9);
  EXPECT_EQ(refused(R"({"do":"edit","on":"b","rows":"colBillItems","at":99999999999,"row":{}})"), 13);
  EXPECT_EQ(refused(R"({"do":"edit","on":"b","rows":"colBillItems","row":{}})"), 450);
}

}  // namespace
}  // namespace brunvik::host
