#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <memory>
#include <random>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "schema/tables.h"
#include "tests/schema_database.h"

namespace {

using brunvik::schema::Column;
using brunvik::schema::Database;
using brunvik::schema::laid;
using brunvik::schema::Row;
using brunvik::schema::Table;
using brunvik::schema::Type;

std::string lower(std::string_view text) {
  std::string lowered(text);
  std::transform(lowered.begin(), lowered.end(), lowered.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return lowered;
}

std::string word(Type type) {
  switch (type) {
    case Type::Key:
    case Type::Text:
    case Type::Memo:
    case Type::Date:
      return "TEXT";
    case Type::Byte:
      return "TINYINT";
    case Type::Integer:
      return "SMALLINT";
    case Type::Long:
      return "INTEGER";
    case Type::Boolean:
      return "BIT";
    case Type::Single:
      return "REAL";
    case Type::Money:
      return "MONEY";
  }
  return {};
}

bool is_text(const Column& column) { return word(column.type) == "TEXT"; }
bool is_fraction(const Column& column) { return column.type == Type::Single || column.type == Type::Money; }

// An insert of one value, with a key where the table has one.
std::string insert_of(const Table& table, const Column& column, const std::string& value) {
  const std::string into = "insert into " + std::string(table.name) + "(" + std::string(column.name);
  if (table.key.empty() || table.key == column.name) return into + ") values(" + value + ")";
  static int next = 0;
  return into + "," + std::string(table.key) + ") values(" + value + ",'K" + std::to_string(++next) + "')";
}

void expect_all_tables(Database& database) {
  std::set<std::string> laid_tables;
  for (const Row& row : database.run("select name from sqlite_master where type='table'")) {
    laid_tables.insert(row.front());
  }
  ASSERT_EQ(laid_tables.size(), brunvik::schema::tables().size());
  for (const Table& table : brunvik::schema::tables()) {
    const std::string name(table.name);
    ASSERT_TRUE(laid_tables.contains(name)) << name;
    const std::vector<Row> columns = database.run("pragma table_info(" + name + ")");
    ASSERT_EQ(columns.size(), table.columns.size()) << name;
    for (std::size_t place = 0; place < columns.size(); ++place) {
      const Column& column = table.columns[place];
      const bool is_key = column.name == table.key;
      EXPECT_EQ(columns[place][1], column.name) << name;
      EXPECT_EQ(columns[place][2], word(column.type)) << name << "." << column.name;
      EXPECT_EQ(columns[place][3], is_key ? "1" : "0") << name << "." << column.name;
      EXPECT_EQ(columns[place][4], column.initial.empty() ? "null" : column.initial) << name << "." << column.name;
      EXPECT_EQ(columns[place][5], is_key ? "1" : "0") << name << "." << column.name;
    }
  }
}

TEST(Schema, Every_table_and_column_is_laid_in_memory_as_it_is_described) {
  Database database = laid();
  expect_all_tables(database);
}

TEST(Schema, Every_table_and_column_is_still_there_when_a_file_is_opened_again) {
  const std::filesystem::path folder = testing::TempDir();
  const std::string path = (folder / ("brunvik_schema_" + std::to_string(std::random_device{}()) + ".db")).string();
  laid(path);
  {
    Database database(path);
    expect_all_tables(database);
    EXPECT_EQ(database.run("pragma integrity_check"), std::vector<Row>{{"ok"}});
  }
  std::filesystem::remove(path);
}

TEST(Schema, No_name_stands_twice_in_any_case) {
  std::set<std::string> tables;
  for (const Table& table : brunvik::schema::tables()) {
    EXPECT_TRUE(tables.insert(lower(table.name)).second) << table.name;
    std::set<std::string> columns;
    for (const Column& column : table.columns) {
      EXPECT_TRUE(columns.insert(lower(column.name)).second) << table.name << "." << column.name;
    }
  }
}

TEST(Schema, Every_insert_of_the_documents_finds_its_columns) {
  const std::vector<std::string> inserts{
      "StockBill(Id,ManualId,Supplier,RManager,Salesman,Creator,CreateTime,Type,InOutFlag,Status,Auditor,AuditTime,"
      "PaidAmount,AdvanceAmount,CloseAmount,Amount,ClosedTag,ReferFlag,Referbillid,Nowpaybillid,NowAdvanceBillID,"
      "Summary,Remarks,CreateFlag)",
      "StockBill(Id,ManualId,Receiver,SManager,Salesman,Creator,CreateTime,Type,InOutFlag,Status,Auditor,AuditTime,"
      "PaidAmount,AdvanceAmount,CloseAmount,Amount,InvoiceName,InvoiceType,TaxRate,DiscountType,DiscountCard,"
      "DiscountRate,DeliveryMethod,ClosedTag,CreateFlag,ReferFlag,Referbillid,nowpaybillid,NowAdvanceBillID,Summary,"
      "Remarks)",
      "StockBillItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,qty,ActualQty,price,Amount,Cost,"
      "Receiver,Equipcode,remarks,Supplier,GoodStutas)",
      "StockBillItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,qty,Actualqty,price,Amount,Receiver,"
      "Supplier,Outfactorydate,Equipcode,Buydate,Accessory,SendStutas,remarks,GoodStutas)",
      "Inventory(WID,GId,Model1,Model2,Status,Class,Unit,InQty,OutQty,CurrentQty,Remarks)",
      "GoodsBill(Id,ManualId,Manager,Salesman,Creator,CreateTime,Type,InOutFlag,Status,Auditor,AuditTime,ReferFlag,"
      "ReferBillID,Summary,Remarks,Gid,Gbarcode,Gname,Class,Unit,Model1,Model2,Actualqty,Price,Amount,WareHouseId,"
      "GoodStutas)",
      "GoodsBillItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,ActualQty,price,Amount,WareHouseId,"
      "EquipCode,GoodStutas,remarks)",
      "PurchaseOrder(Id,ManualId,Supplier,Purman,Creator,CreateTime,BillCost,SendClosedtag,ReferFlag,Referbillid,"
      "Summary,Remarks)",
      "PurchaseOrderItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,UQty,qty,Actualqty,price,Amount,"
      "Supplier,remarks)",
      "PurchaseOrderList(PurOrderId,PurInId,OrderRownum,PurRownum,Goodsid,unit,Qty)",
      "SaleOrder(Id,ManualId,Receiver,Salesman,Creator,CreateTime,BillCost,SendClosedtag,ReferFlag,Referbillid,Summary,"
      "Remarks)",
      "SaleOrderItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,UQty,qty,Actualqty,price,Amount,"
      "Receiver,remarks)",
      "SaleOutOrderList(SaleOrderid,SaleOutid,OrderRownum,OutRownum,Goodsid,unit,Qty)",
      "PurchaseShareCost(Id,Vendors,Creator,CreateTime,BillCost,PurChaseBill,PurChaseAmount,ReferFlag,ReferBillID,"
      "Summary,Remarks)",
      "PurChaseCostItems(BillId,RowNum,CostId,CostName,Amount,ShareMethod,remarks)",
      "PuchaseBillItems(Billid,CostId,GRowNum,GId,GoodQty,ShareId,Sharecost,ShareMethod,UseShare)",
      "AdjustInBill(Id,ManualId,Manager,Salesman,Creator,CreateTime,Status,Deliverymethod,Auditor,AuditTime,ReferFlag,"
      "Referbillid,Summary,Remarks)",
      "AdjustStockBill(AdjustId,StockId,RowNum,Meansofpayment,Amount,StockRowNum)",
      "ZHJYXX(id,ZHID,JYZY,JYSJ,JYJE,JYFS,JYLX,ZCZHID,DYID,CJSJ,CZY,JBR,DYDJH,XM,SFKR)",
      "ZHXX(ID,ZH,KHH,YE,ZHLX)",
      "RPVouchers(Id,Manualid,Manager,Ccompany,Type,Paidamount,Amount,Nowpay,Status,Creator,Createtime,Auditor,"
      "Audittime,Referflag,Referbillid,Summary,Remarks)",
      "RPBItems(BID,RowNum,MeansOfPayment,kh,Amount,Remarks)",
      "RPBRPItems(BID,RowNum,RPableBID,RPableBType,Amount,Remarks)",
      "AdvanceBill(Id,Manualid,Manager,Ccompany,Type,Paidamount,Amount,Nowpay,Status,Creator,Createtime,Auditor,"
      "Audittime,Referflag,Referbillid,Summary,Remarks)",
      "AdvanceItems(BID,RowNum,RPableBID,RPableBType,Amount,Remarks)",
      "PlansBill(Id,CtCompany,Manager,Creator,CreateTime,Status,Amount,PaidAmount,PayBillId,ClosedTag,BillCount,Type,"
      "StartDate,Enddate,ReferFlag,ReferBillID,Summary,Remarks)",
      "PlansBillItems(PlanId,OTBillId,BillType,ClosedBill,ClosedAmount,PaidAmount,remarks)",
      "OthersIEBill(Id,ManualId,CCompany,Manager,Creator,CreateTime,Type,Status,Auditor,Audittime,Paidamount,"
      "Closeamount,Amount,Invoicename,Invoicetype,Taxrate,Discounttype,Discountcard,Discountrate,Deliverymethod,"
      "Closedtag,Nowpaybillid,Referflag,Referbillid,Lastupdatetime,Summary,Remarks)",
      "OthersIEBillItems(Billid,Rownum,Itemid,Itemname,Unit,Qty,Price,Amount,Remarks)",
      "RGStockBill(Id,ManualId,Supplier,ProcessFlag,Salesman,RManager,FixType,NeedDays,InOutFlag,Status,Creator,"
      "CreateTime,Summary,Remarks,Auditor,AuditTime,QtyStutas,BaoXiuDate)",
      "RGStockBill(Id,ManualId,Receiver,ProcessFlag,SManager,Deliverymethod,InOutFlag,Status,Creator,CreateTime,"
      "Summary,Remarks,QtyStutas,BaoXiuDate)",
      "RGStockBill(Id,ManualId,Receiver,ProcessFlag,Salesman,SManager,Invoicename,Invoicetype,Taxrate,Deliverymethod,"
      "Closedtag,Amount,PayMethod,Paidamount,Closeamount,DiscountType,DiscountCard,DiscountRate,InOutFlag,Status,"
      "Creator,CreateTime,Summary,Remarks,NowPayBillId)",
      "RGStockBill(Id,ManualId,Supplier,RManager,Salesman,Creator,CreateTime,ProcessFlag,InOutFlag,Status,Auditor,"
      "AuditTime,PaidAmount,CloseAmount,Amount,ClosedTag,ReferFlag,Nowpaybillid,Summary,Remarks,Receiver)",
      "RGStockBillItems(BillId,RowNum,GId,GName,GBarcode,Class,Model1,Model2,unit,qty,price,Amount,StoreHouse,"
      "BrokenDspt,FixMeans,OutFactoryDate,EquipCode,BuyDate,Accessory,remarks,YfQty,OutHouse,GuanLianBill,DYRowNum,"
      "DYGId,SendStutas)",
      "RGStockBillList(RGBxrkId,StockId,RGStockType,StockType,RGStockRowNum,StockRowNum,Goodsid,unit,GoodStutas,Qty)",
      "AfterServiceBill(BillId,KeHuBH,ContactPerson,ContactPhone,ContactMoblie,ContactAddress,RepairObject,"
      "ExpirationDate,BuyDate,RepairType,AdVisitDate,CustomerKind,CusProvDoc,BrokenType,BrokenDsp,EquipType,EquipNum,"
      "UsefulBill,Remarks,ProcessFlag,IsFinished,Creator,CreateTime)",
      "AfterServiceBill(BillId,LastModiTime,Status,type,ReferBillId,BorrowBill,ServiceDate,EstimateDate,Estimator,"
      "Executor,Solution,EstimatorNote,ExecutorNote,PaiDanRen,PaiDanTime,ArriveDate,ServiceFee,FittingsFee,AreaFee,"
      "PayType,PaidAmount,HandleResult,FinishDate,CusAppraise,JieDanRen,JieDanTime,FeedBackor,ManYiLevel,CheckSvrFee,"
      "Score,LastOpinion,FanKuiRen,FanKuiTime)",
      "GBorrowBill(Id,ManualId,Userflag,Receiver,SManager,Salesman,Telphone,Creator,CreateTime,Type,InOutFlag,Status,"
      "Auditor,AuditTime,Amount,BillCost,ClosedTag,ReferFlag,Referbillid,Summary,Remarks,Deliverymethod,BorrowDays,"
      "CreateFlag,Supplier,RManager)",
      "GBorrowItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,Uqty,ActualQty,price,Amount,Cost,"
      "Receiver,Equipcode,remarks,GoodStutas,Supplier)",
      "GBorrowList(BorrowId,StcokId,BorrowType,StcokType,BorrowRowNum,StcokRowNum,Goodsid,unit,GoodStutas,Qty)",
      "SendGoodsBill(Id,Receiveunit,Receiver,Receiveaddress,Receivetel,Sendgoodsunit,Sendgoodser,Sendgoodstel,"
      "Logisticcompany,Logisticfare,Collecttag,Receiptcasher,Openingbank,Bankaccount,Receiptmoney,Sendgoodsdate,"
      "Remarks,Operater,Operatedate,YFZFZH,JSBJ,Status)",
      "SendGoodsBillItems(Billid,Rownum,Gstutas,Businessclass,Gid,Gbarcode,Gname,Class,Model1,Model2,Unit,Qty,Price,"
      "Amount,Supplier,Receiver,Outfactorydate,Equipcode,Buydate,Accessory,Remarks,Bid,BType,BillDate)",
      "SendBillItems(Billid,Bid,DYType,Closeamount,Paidamount,Creator,Createtime,Auditor,Audittime,Remarks,DJBJ,SKLX)",
      "SendGoodsVouchersbill(Id,Manualid,Manager,Ccompany,Paidamount,Amount,Status,Creator,Createtime,Auditor,"
      "Audittime,Sxfbl,Sxfzd,Dszh,Remarks)",
      "SendGoodsVouchersbillItems(BID,RowNum,RPableBID,Amount,Paidamount,Ccompany,Fhtime,Remarks,ReceptId,PayId)",
      "goods(id,Gname,Class,Enabled,GType,Unit,Price,Purchaseprice,RetailPrice,MinInventory,Mnemonic,MaxInventory,"
      "ShelfLife,Model1,Model2,UnitConverter,MinUnit,PriceA,PriceB,PriceC,PriceD,PriceE,Popularity,Guarantee,Brand,"
      "Barcode,AverageCost,TecParameters,GCZYCPFlag)",
      "GoodsUnit(id,Unit,UnitConverter)",
      "ContactsCompany(id,FullName)",
      "Warehouse(id,WName)",
      "BasicConfig(keyname,keyvalue)",
  };
  Database database = laid();
  int number = 0;
  for (const std::string& insert : inserts) {
    std::string values = "'" + std::to_string(++number) + "'";
    for (const char c : insert) {
      if (c == ',') values += ",1";
    }
    EXPECT_NO_THROW(database.run("insert into " + insert + " values(" + values + ")"));
  }
}

TEST(Schema, Columns_that_only_reads_and_marks_name_are_there) {
  Database database = laid();
  for (const char* statement : {
           "update StockBill set FHBJ=0,BillCost=0 where Id='x'",
           "update StockBillItems set SendStutas=0,ShareCost=0 where BillId='x'",
           "select * from StockBillItems order by stockbillitems.StockRowNum",
           "update RGStockBill set FHBJ=0 where Id='x'",
           "update RGStockBillItems set SendStutas=0 where BillId='x'",
           "update GBorrowBill set FHBJ=0 where Id='x'",
           "update GBorrowItems set SendStutas=0 where BillId='x'",
       }) {
    EXPECT_NO_THROW(database.run(statement)) << statement;
  }
}

TEST(Schema, The_list_of_finished_plans_takes_an_insert_without_column_names) {
  Database database = laid();
  EXPECT_TRUE(database.takes("insert into WCPlansItems values('SJH24030500001')"));
  EXPECT_TRUE(database.takes("insert into WWCPlansItems values('SJH24030500001')"));
}

TEST(Schema, A_column_of_numbers_refuses_words_and_bytes_and_takes_null) {
  Database database = laid();
  for (const Table& table : brunvik::schema::tables()) {
    for (const Column& column : table.columns) {
      if (is_text(column)) continue;
      const std::string name = std::string(table.name) + "." + std::string(column.name);
      EXPECT_FALSE(database.takes(insert_of(table, column, "'abc'"))) << name;
      EXPECT_FALSE(database.takes(insert_of(table, column, "''"))) << name;
      EXPECT_FALSE(database.takes(insert_of(table, column, "x'00'"))) << name;
      EXPECT_TRUE(database.takes(insert_of(table, column, "null"))) << name;
      EXPECT_TRUE(database.takes(insert_of(table, column, "1"))) << name;
      EXPECT_TRUE(database.takes(insert_of(table, column, "'1'"))) << name;
      EXPECT_EQ(database.takes(insert_of(table, column, "1.5")), is_fraction(column)) << name;
    }
  }
}

TEST(Schema, A_wrong_type_is_refused_in_an_update_too) {
  Database database = laid();
  database.run("insert into StockBill(Id,Amount) values('a',1.5)");
  EXPECT_FALSE(database.takes("update StockBill set Amount='abc' where Id='a'"));
  EXPECT_EQ(database.run("select Amount from StockBill"), std::vector<Row>{{"1.5"}});
}

TEST(Schema, A_text_column_takes_any_value_and_keeps_it_as_text) {
  Database database = laid();
  database.run("insert into RGStockBillItems(BillId,FixMeans,BuyDate) values('a',0,'2024年3月5日')");
  EXPECT_EQ(database.run("select typeof(FixMeans),BuyDate from RGStockBillItems where FixMeans=0"),
            (std::vector<Row>{{"text", "2024年3月5日"}}));
}

TEST(Schema, A_new_row_costs_nothing_until_it_is_audited) {
  Database database = laid();
  database.run("insert into StockBillItems(BillId,RowNum,GId) values('a',1,'G1')");
  EXPECT_EQ(database.run("select Cost,ShareCost,price,Amount from StockBillItems where cost=0"),
            (std::vector<Row>{{"0", "0", "0", "0"}}));
}

TEST(Schema, A_new_bill_is_open_and_has_nothing_paid) {
  Database database = laid();
  database.run("insert into StockBill(Id) values('a')");
  EXPECT_EQ(database.run("select PaidAmount,AdvanceAmount,CloseAmount,Amount,BillCost,ClosedTag from StockBill"),
            (std::vector<Row>{{"0", "0", "0", "0", "0", "0"}}));
  for (const std::string table : {"RGStockBill", "OthersIEBill"}) {
    database.run("insert into " + table + "(Id) values('a')");
    database.run("update " + table + " set paidAmount= paidAmount +2.5 where id='a'");
    EXPECT_EQ(database.run("select PaidAmount,CloseAmount,ClosedTag from " + table),
              (std::vector<Row>{{"2.5", "0", "0"}}));
  }
}

TEST(Schema, New_goods_have_an_average_cost_of_zero_and_no_flag) {
  Database database = laid();
  database.run("insert into goods(id) values('G1')");
  EXPECT_EQ(database.run("select AverageCost,GCZYCPFlag,Price from goods"), (std::vector<Row>{{"0", "null", "null"}}));
  EXPECT_TRUE(database.takes("update goods set AverageCost=null"));
}

TEST(Schema, What_nobody_has_said_is_null) {
  Database database = laid();
  database.run("insert into StockBill(Id) values('a')");
  database.run("insert into StockBillItems(BillId) values('a')");
  database.run("insert into AfterServiceBill(BillId) values('a')");
  EXPECT_EQ(database.run("select Status,ReferFlag,FHBJ,Summary from StockBill"),
            (std::vector<Row>{{"null", "null", "null", "null"}}));
  EXPECT_EQ(database.run("select RowNum,StockRowNum,Remarks from StockBillItems"),
            (std::vector<Row>{{"null", "null", "null"}}));
  EXPECT_EQ(database.run("select Type from AfterServiceBill where type is null"), (std::vector<Row>{{"null"}}));
}

TEST(Schema, A_number_of_a_bill_stands_once_in_any_case) {
  Database database = laid();
  for (const Table& table : brunvik::schema::tables()) {
    if (table.key.empty()) continue;
    const std::string into = "insert into " + std::string(table.name) + "(" + std::string(table.key) + ") values(";
    EXPECT_TRUE(database.takes(into + "'QTR24030500001')")) << table.name;
    EXPECT_FALSE(database.takes(into + "'qtr24030500001')")) << table.name;
    EXPECT_FALSE(database.takes(into + "null)")) << table.name;
  }
}

TEST(Schema, Two_rows_of_one_number_and_two_models_of_one_goods_go_in) {
  Database database = laid();
  for (const std::string table : {"StockBillItems", "RGStockBillItems", "GBorrowItems", "GoodsBillItems"}) {
    EXPECT_TRUE(database.takes("insert into " + table + "(BillId,RowNum) values('a',1)")) << table;
    EXPECT_TRUE(database.takes("insert into " + table + "(BillId,RowNum) values('a',1)")) << table;
  }
  EXPECT_TRUE(database.takes("insert into goods(id,Model1) values('G1','red')"));
  EXPECT_TRUE(database.takes("insert into goods(id,Model1) values('G1','blue')"));
  EXPECT_TRUE(database.takes("insert into Inventory(WID,GId,Status) values('W1','G1',0)"));
  EXPECT_TRUE(database.takes("insert into Inventory(WID,GId,Status) values('W1','G1',0)"));
}

}  // namespace
