// How SQLite goes about the statements of the documents: never through a whole table.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "drivers/sqlite/connection.h"
#include "tests/schema_database.h"

namespace {

using namespace brunvik;
using brunvik::schema::Database;
using brunvik::schema::laid;
using brunvik::schema::Row;

struct Search {
  const char* statement;
  std::vector<const char*> steps;  // the tables and the columns by which each is found, in the plan's order
};

TEST(SchemaPlans, No_statement_of_the_documents_reads_a_table_from_end_to_end) {
  const std::vector<Search> searches{
      {"select max(ID)  from StockBill  where ID like 'QTR240305%' ", {"StockBill", "(Id>? AND Id<?)"}},
      {"select max(BillId)  from AfterServiceBill  where BillId like 'SFD240305%' ",
       {"AfterServiceBill", "(BillId>? AND BillId<?)"}},
      {"select * from StockBill where Id='QTR24030500001'", {"StockBill", "(Id=?)"}},
      {"select count(ID) as BillCount from StockBill where Id='a'", {"StockBill", "(Id=?)"}},
      {"select Max(Id) as Id from StockBill where type=6", {"COVERING INDEX", "(Type=?)"}},
      {"select Min(Id) as Id from StockBill where id > 'QTR1' and type=6", {"COVERING INDEX", "(Type=? AND Id>?)"}},
      {"select Max(Id) as Id from StockBill where Id < 'QTR1' and type=6", {"COVERING INDEX", "(Type=? AND Id<?)"}},
      {"select max(Id) as Id from StockBill where type=5 and id like 'XSC%'",
       {"COVERING INDEX", "(Type=? AND Id>? AND Id<?)"}},
      {"select id from StockBill where ReferBillID='CDD1' and Status>=2", {"StockBill", "(Referbillid=?)"}},
      {"update stockbill set paidAmount= paidAmount +1 where id='a' and type= 5", {"stockbill", "(Id=?)"}},
      {"Update StockBillItems set cost=1,ShareCost=0 where BillId='a' and RowNum=1",
       {"StockBillItems", "(BillId=? AND RowNum=?)"}},
      {"update StockBillItems set Cost=1 where Gid='G1' and RowNum=1 and BillId='a'",
       {"StockBillItems", "(BillId=? AND RowNum=?)"}},
      {"delete from StockBillItems where BillId='a' and Receiver='W1' and Gid='G1'", {"StockBillItems", "(BillId=?)"}},
      {"update stockbillitems set cost=1,Qty=1 Where BillId = 'a' and GID='G1'", {"stockbillitems", "(BillId=?)"}},
      {"select StockBillItems.*,warehouse.WName from StockBillItems left join Warehouse on stockbillitems.Receiver ="
       " Warehouse.id where stockbillitems.BillId='a' order by stockbillitems.rownum",
       {"StockBillItems", "(BillId=?)", "Warehouse", "(id=?)"}},
      {"select StockBillItems.*,warehouse.WName,AdjustStockBill.MeansOfPayment,AdjustStockBill.Amount as XFMount from"
       " (StockBillItems left join Warehouse  on stockbillitems.Receiver = Warehouse.id) left join AdjustStockBill on"
       "  (StockBillItems.BillID=AdjustStockBill.StockID and StockBillItems.RowNum=AdjustStockBill.StockRowNum)"
       "where stockbillitems.BillId='a' order by stockbillitems.StockRowNum",
       {"StockBillItems", "(BillId=?)", "Warehouse", "(id=?)", "AdjustStockBill", "(StockId=? AND StockRowNum=?)"}},
      {"select StockBillItems.*,Goods.AverageCost from (StockBillItems left join Goods ON StockBillItems.GId ="
       " Goods.ID) left JOIN StockBill ON StockBillItems.BillId = StockBill.Id where StockBill.Status=3 and"
       " StockBillItems.cost=0  and stockBillItems.ActualQty<>0 and (StockBill.type=5 or StockBill.type=4) and"
       " StockBillItems.Gid='G1'",
       {"StockBillItems", "(GId=? AND Cost=?)"}},
      {"select goods.AverageCost,sum(Inventory.CurrentQty) as qty from goods left join Inventory on"
       " (goods.id=Inventory.gid and goods.class=Inventory.class and goods.model1=Inventory.model1 and"
       " goods.model2=Inventory.model2)  where goods.id='G1' and goods.class='c' and goods.model1='' and"
       " goods.model2='' group by goods.AverageCost",
       {"goods", "(id=? AND Class=? AND Model1=? AND Model2=?)", "Inventory",
        "(GId=? AND Class=? AND Model1=? AND Model2=?)"}},
      {"UPDATE GOODS SET AVERAGECOST=1 WHERE GOODS.ID='G1' AND GOODS.CLASS='C' AND GOODS.MODEL1='' AND"
       " GOODS.MODEL2=''",
       {"goods", "(id=? AND Class=? AND Model1=? AND Model2=?)"}},
      {"select * from goods where id='G1'", {"goods", "(id=?)"}},
      {"select id,Unit,UnitConverter from GoodsUnit where id='G1' and Unit='箱'", {"GoodsUnit", "(id=? AND Unit=?)"}},
      {"update Inventory set InQty = InQty + 1,CurrentQty = CurrentQty+1 where WID='W1' and GId='G1' and Model1=''"
       " and Model2='' and Status=0",
       {"Inventory", "(WID=? AND GId=? AND Model1=? AND Model2=? AND Status=?)"}},
      {"delete from Inventory where Status=0 and WID='W1'", {"Inventory", "(WID=?)"}},
      {"select * from BasicConfig where keyname='启用帐款审核'", {"BasicConfig", "(keyname=?)"}},
      {"Select stockbill.amount as billamount,(select sum(RPBRPItems.Amount) from RPVouchers left join RPBRPItems on"
       " RPVouchers.id=RPBRPItems.BID where (RPVouchers.status<>1 or RPVouchers.status is null) and"
       " RPBRPItems.RPableBID='a') as PaidAmount, (select sum(AdvanceItems.Amount) from AdvanceBill left join"
       " AdvanceItems on AdvanceBill.id=AdvanceItems.BID where (AdvanceBill.status<>1 or AdvanceBill.status is null)"
       " and AdvanceItems.RPableBID='a') as PaidAmount2 from stockbill where id = 'a' group by stockbill.amount",
       {"RPBRPItems", "(RPableBID=?)", "RPVouchers", "(Id=?)", "AdvanceItems", "(RPableBID=?)", "AdvanceBill",
        "(Id=?)"}},
      {"select RPVouchers.id from RPVouchers Left join RPBRPItems on RPVouchers.Id=RPBRPItems.BID where"
       " RPVouchers.CreateTime>'2024-03-05' And RPVouchers.Status=3 And RPBRPItems.RPableBID ='a' And"
       " RPBRPItems.RPableBType=5 and RPVouchers.id not in ('0')",
       {"RPBRPItems", "(RPableBID=?)", "RPVouchers", "(Id=?)"}},
      {"select * from RPBRPItems where bid='a'", {"RPBRPItems", "(BID=?)"}},
      {"select * from AdvanceItems where bid='a'", {"AdvanceItems", "(BID=?)"}},
      {"select * from RPBItems where bid='a'", {"RPBItems", "(BID=?)"}},
      {"select Max(Id) as Id from RPVouchers where id < 'a' and type=1", {"RPVouchers", "(Type=? AND Id<?)"}},
      {"select Max(Id) as Id from AdvanceBill where type=2", {"AdvanceBill", "(Type=?)"}},
      {"select Max(Id) as Id from OthersIEBill where type=17", {"OthersIEBill", "(Type=?)"}},
      {"select * from OthersIEBillItems where BillId='a' order by rownum", {"OthersIEBillItems", "(Billid=?)"}},
      {"delete from PlansBillItems where planid='a'", {"PlansBillItems", "(PlanId=?)"}},
      {"Delete from WWCPlansItems where PlanId='a'", {"WWCPlansItems", "(PlanId=?)"}},
      {"select * from ZHJYXX where DYDJH='a'", {"ZHJYXX", "(DYDJH=?)"}},
      {"update ZHXX set YE=YE + 1 where ID='1'", {"ZHXX", "(ID=?)"}},
      {"delete from ZHXX where ZH='1'", {"ZHXX", "(ZH=?)"}},
      {"select Max(Id) as Id from GoodsBill where type=42", {"GoodsBill", "(Type=?)"}},
      {"select * from GoodsBillItems where BillId='a'", {"GoodsBillItems", "(BillId=?)"}},
      {"select * from PurchaseOrder where id like 'CDD%' order by Id desc", {"PurchaseOrder", "(Id>? AND Id<?)"}},
      {"select * from PurchaseOrderList where PurOrderId='a' and PurInId='b' order by PurRowNum",
       {"PurchaseOrderList", "(PurOrderId=? AND PurInId=?)"}},
      {"delete from PurchaseOrderList where PurInId='b'", {"PurchaseOrderList", "(PurInId=?)"}},
      {"update SaleOrderItems set ActualQty=ActualQty+1 where BillId='a' and RowNum=1 and GID='G1'",
       {"SaleOrderItems", "(BillId=? AND RowNum=?)"}},
      {"delete from SaleOutOrderList where SaleOutId='b'", {"SaleOutOrderList", "(SaleOutid=?)"}},
      {"select PurchaseShareCost.*,ContactsCompany.FullName from PurchaseShareCost left join ContactsCompany on"
       " PurchaseShareCost.Vendors=ContactsCompany.Id where 1=1  and PurchaseShareCost.Purchasebill='a'",
       {"PurchaseShareCost", "(PurChaseBill=?)", "ContactsCompany", "(id=?)"}},
      {"select * from PuchaseBillItems where BillId='a' order by Grownum", {"PuchaseBillItems", "(Billid=?)"}},
      {"select distinct Stockid from AdjustStockBill where AdjustId='a'", {"AdjustStockBill", "(AdjustId=?)"}},
      {"delete from AdjustStockBill where StockId='a'", {"AdjustStockBill", "(StockId=?)"}},
      {"select Max(Id) as Id from RGStockBill where Id < 'a' and Processflag=11",
       {"RGStockBill", "(ProcessFlag=? AND Id<?)"}},
      {"Update RGStockBillItems set YfQty= YfQty +1 where BillId='a' and GId='G1' and RowNum=1",
       {"RGStockBillItems", "(BillId=? AND RowNum=?)"}},
      {"SELECT sum(RGStockBillItems.qty) as qty,sum(RGStockBillItems.YfQty) as yfqty FROM RGStockBill  INNER JOIN"
       " RGStockBillItems ON RGStockBill.Id = RGStockBillItems.BillId where RGStockBill.Id='a'",
       {"RGStockBill", "(Id=?)", "RGStockBillItems", "(BillId=?)"}},
      {"select * from RGStockBillList where RGBxrkId='a' and StockId='b' and StockType=4 order by StockRowNum",
       {"RGStockBillList", "(RGBxrkId=? AND StockId=?)"}},
      {"delete from RGStockBillList where StockId='b'", {"RGStockBillList", "(StockId=?)"}},
      {"select Max(BillId) as BillId from AfterServiceBill where type is null and BillId < 'a' and ProcessFlag>=2",
       {"COVERING INDEX", "(Type=? AND BillId<?)"}},
      {"select Min(BillId) as BillId from AfterServiceBill where Type=34", {"COVERING INDEX", "(Type=?)"}},
      {"select Max(Id) as Id from GBorrowBill where type=28", {"GBorrowBill", "(Type=?)"}},
      {"select * from GBorrowBill where type=30 order by Id desc", {"GBorrowBill", "(Type=?)"}},
      {"select Min(Id) as Id from GBorrowBill where id > 'a' and type=29", {"GBorrowBill", "(Type=? AND Id>?)"}},
      {"select * from GBorrowItems where BillId='a'", {"GBorrowItems", "(BillId=?)"}},
      {"update GBorrowItems set ActualQty=ActualQty+1 where BillId='a' and RowNum=1 and GoodStutas=0 and GId='G1'",
       {"GBorrowItems", "(BillId=? AND RowNum=?)"}},
      {"select * from GBorrowList where BorrowId='a' and StcokId='b' and BorrowType=28 and StcokType=2 order by"
       " StcokRowNum",
       {"GBorrowList", "(BorrowId=? AND StcokId=?)"}},
      {"delete from GBorrowList where StcokId='b'", {"GBorrowList", "(StcokId=?)"}},
      {"select * from SendGoodsBillItems  where BillId='a' order by rownum", {"SendGoodsBillItems", "(Billid=?)"}},
      {"select * from SendBillItems  where BillId='a' order by bid", {"SendBillItems", "(Billid=?)"}},
      {"select SendGoodsVouchersbillItems.*,SendGoodsBill.SendGoodsTel from SendGoodsVouchersbillItems left join"
       " SendGoodsBill on SendGoodsBill.id  = SendGoodsVouchersbillItems.Rpablebid where bid='a' order by"
       " SendGoodsBill.SendGoodsTel",
       {"SendGoodsVouchersbillItems", "(BID=?)", "SendGoodsBill", "(Id=?)"}},
  };
  Database database = laid();
  for (const Search& search : searches) {
    const std::string plan = database.plan(search.statement);
    EXPECT_EQ(plan.find("SCAN"), std::string::npos) << search.statement << "\n" << plan;
    std::size_t place = 0;
    for (const char* step : search.steps) {
      place = plan.find(step, place);
      ASSERT_NE(place, std::string::npos) << search.statement << "\nhas no " << step << " in its place in\n" << plan;
    }
  }
}

TEST(SchemaPlans, The_rows_of_a_bill_come_in_their_order_without_being_sorted) {
  Database database = laid();
  const std::string plan = database.plan("select * from StockBillItems where BillId='a' order by rownum");
  EXPECT_EQ(plan.find("TEMP B-TREE"), std::string::npos) << plan;
}

TEST(SchemaPlans, The_driver_finds_the_rows_without_a_cost_in_the_index_that_holds_no_other) {
  const auto books = sqlite::open(":memory:");
  for (const std::string& statement : schema::statements(schema::Engine::sqlite)) books->Execute(statement);
  ado::Recordset set = books->Execute(
      "explain query plan select StockBillItems.*,Goods.AverageCost from (StockBillItems left join Goods ON "
      "StockBillItems.GId = Goods.ID) left JOIN StockBill ON StockBillItems.BillId = StockBill.Id where "
      "StockBill.Status=3 and StockBillItems.cost=0  and stockBillItems.ActualQty<>0 and (StockBill.type=5 or "
      "StockBill.type=4) and StockBillItems.Gid='G1'");
  EXPECT_EQ(set.value("detail").as_text(),
            "SEARCH StockBillItems USING INDEX StockBillItems_GId_Cost (GId=? AND Cost=?)");
}

TEST(SchemaPlans, The_driver_finds_the_next_key_of_the_journal_without_reading_it) {
  const auto books = sqlite::open(":memory:");
  for (const std::string& statement : schema::statements(schema::Engine::sqlite)) books->Execute(statement);
  for (const char* number : {"convert(int,id)", "clng(id)"}) {
    std::string plan;
    ado::Recordset set =
        books->Execute("explain query plan select max(" + std::string(number) + ") as ls_bm from ZHJYXX");
    for (; !set.at_end(); set.MoveNext()) plan += set.value("detail").as_text() + "\n";
    EXPECT_NE(plan.find("SCAN ZHJYXX USING COVERING INDEX ZHJYXX_ID\n"), std::string::npos) << plan;
    EXPECT_NE(plan.find("SCAN ZHJYXX USING INDEX ZHJYXX_CAST_ID_AS_INTEGER\n"), std::string::npos) << plan;
    EXPECT_EQ(plan.find("TEMP B-TREE"), std::string::npos) << plan;
  }
}

TEST(SchemaPlans, A_row_stands_in_the_index_of_the_zero_costs_until_it_has_a_cost) {
  Database database = laid();
  const std::string definition =
      database.run("select sql from sqlite_master where name='StockBillItems_GId_Cost'").front().front();
  EXPECT_TRUE(definition.ends_with("(GId, Cost) WHERE Cost=0")) << definition;
}

}  // namespace
