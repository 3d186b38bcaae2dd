#include "brunvik/warehouse/opening_stock.h"

#include "brunvik/ado/date.h"
#include "brunvik/billframe/bill.h"
#include "brunvik/billframe/row_reader.h"
#include "brunvik/foundation/column_statement.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/late_binding.h"
#include "brunvik/foundation/sql_text.h"
#include "brunvik/stock/stock_balance.h"

namespace brunvik {

namespace {

// A date with or without its time in the form in which the books keep it; any other text as it stands.
std::string as_timestamp(const std::string& text) {
  std::string stamp = text;
  // A time alone is no date.
  if (text.find_first_of("-/") != std::string::npos) {
    trap([&] { stamp = ado::timestamp_text(ado::parse_date(text)); });
  }
  return stamp;
}

// The condition of a slice, empty for all goods.
std::string goods_filter(const std::string& goods_class, Integer slice) {
  std::string filter;
  const auto add = [&](const std::string& condition) {
    if (!filter.empty()) filter += " and ";
    filter += condition;
  };
  if (!goods_class.empty()) add(sql(" Goods.Class={like}", goods_class));
  if (slice == 1) add(sql(" Goods.GCZYCPFlag={}", slice));
  if (slice == 2) add(sql(" (Goods.GCZYCPFlag={} or Goods.GCZYCPFlag is null)", slice));
  return filter;
}

}  // namespace

// All that tells the two halves apart.
struct clsInitInBill::Words {
  std::string header_table, row_table;
  // As the update spells the header's table.
  std::string updated_table;
  // The column that holds the kind; what the new goods have more; the column of a row's warehouse.
  std::string kind_column;
  std::string create_flag, actual_quantity, cost;
  std::string warehouse_column;
  StatementText<1> select_rows;
  // Under which an error is told; without a tag it is not.
  std::string_view save_tag, add_tag, update_tag, add_row_tag, number_tag, load_tag, read_tag, read_rows_tag;
};

struct clsInitInBill::Half {
  explicit Half(Words half);

  Words words;
  // Statements write some columns from what is no public member.
  Members updated, inserted, row_members;
  std::vector<ColumnSource> header_sources;
  Insert insert;
  Update update;
  Insert insert_row;
  RowMembers row_members_read;
};

clsInitInBill::Half::Half(Words half)
    : words(std::move(half)),
      updated{computed<&clsInitInBill::closed>({}, "ClosedTag"), MemberGroup(table().begin(), table().end())},
      inserted{computed<&clsInitInBill::created>({}, "CreateTime"), computed<&clsInitInBill::audited>({}, "AuditTime"),
               MemberGroup(updated.begin(), updated.end())},
      row_members{property<&StockRow::Receiver>("Receiver", words.warehouse_column),
                  MemberGroup(StockRow::table().begin(), StockRow::table().end())},
      header_sources{constant(words.kind_column, *kind::clsInitInBill.code),
                     constant("InOutFlag", kind::clsInitInBill.side), argument("Status")},
      insert(inserted, header_sources,
             "insert into " + words.header_table + "(Id,ManualId,Supplier,RManager,Salesman,Creator,CreateTime," +
                 words.kind_column +
                 ",InOutFlag,Status,Auditor,AuditTime,PaidAmount,CloseAmount,Amount,ClosedTag,ReferFlag,Nowpaybillid,"
                 "Summary,Remarks," +
                 words.create_flag + "Receiver) values("),
      update(updated, header_sources,
             "update " + words.updated_table +
                 " set ManualId = ,Supplier = ,RManager = ,Salesman = ,Creator = ,CreateTime = ," + words.kind_column +
                 " = ,InOutFlag = ,Status = ,Auditor = ,AuditTime = ,PaidAmount = ,CloseAmount = ,Amount = ,"
                 "ClosedTag = ,ReferFlag = ,Summary = ,Remarks =  where Id="),
      insert_row(row_members, {from("Actualqty", "Qty")},
                 "insert into " + words.row_table + "(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,qty," +
                     words.actual_quantity + "price,Amount," + words.cost + words.warehouse_column +
                     ",Equipcode,remarks) values("),
      row_members_read(insert_row.members_written()) {
  row_members_read.push_back(&row_members.named("Wname"));
}

const clsInitInBill::Half& clsInitInBill::new_goods() {
  static const Half half({.header_table = "StockBill",
                          .row_table = "StockBillItems",
                          .updated_table = "stockbill",
                          .kind_column = "Type",
                          .create_flag = "CreateFlag,",
                          .actual_quantity = "Actualqty,",
                          .cost = "Cost,",
                          .warehouse_column = "Receiver",
                          .select_rows =
                              "select StockBillItems.*,warehouse.WName from StockBillItems left join Warehouse on "
                              "stockbillitems.Receiver = Warehouse.id where stockbillitems.BillId={} "
                              "order by stockbillitems.rownum,GId",
                          .save_tag = "Save():",
                          .add_tag = "AddInitInBill():",
                          .update_tag = "UpdateInitInBill():",
                          .add_row_tag = "AddInitInBillItem():",
                          .number_tag = "GetNewId():",
                          .load_tag = "LoadById():",
                          .read_tag = "GetInitInBill():",
                          .read_rows_tag = "GetInitInBillItems():"});
  return half;
}

const clsInitInBill::Half& clsInitInBill::repair_goods() {
  static const Half half({.header_table = "RGStockBill",
                          .row_table = "RGStockBillItems",
                          .updated_table = "RGStockBill",
                          .kind_column = "ProcessFlag",
                          .create_flag = "",
                          .actual_quantity = "",
                          .cost = "",
                          .warehouse_column = "StoreHouse",
                          .select_rows =
                              "select RGStockBillItems.*,warehouse.WName from RGStockBillItems left join Warehouse on "
                              "RGStockBillItems.StoreHouse = Warehouse.id where RGStockBillItems.BillId={} "
                              "order by RGStockBillItems.rownum,GId",
                          .save_tag = "RGSave():",
                          .add_tag = "AddRGInitInBill():",
                          .update_tag = "UpdateRGInitInBill():",
                          .add_row_tag = "AddRGInitInBillItem():",
                          .number_tag = "GetRGNewId():",
                          // What its load meets is told where the header is read, and nowhere else.
                          .load_tag = "",
                          .read_tag = "GetRGInitInBill():",
                          .read_rows_tag = ""});
  return half;
}

const Members& clsInitInBill::table() {
  using C = clsInitInBill;
  static const Members table{
      connection<&C::ADOConn>("ADOConn"),
      property<&C::CreateFlag>("CreateFlag", "CreateFlag"),
      property<&C::Receiver>("Receiver", "Receiver"),
      property<&C::Nowpaybillid>("Nowpaybillid", "Nowpaybillid"),
      collection<&C::colBillItems>("colBillItems"),
      property<&C::ID>("ID", "Id"),
      property<&C::Manualid>("Manualid", "ManualId"),
      property<&C::Vendor>("Vendor", "Supplier"),
      property<&C::RkrId>("RkrId", "RManager"),
      property<&C::Salesman>("Salesman", "Salesman"),
      property<&C::Creator>("Creator", "Creator"),
      property<&C::Createtime>("Createtime", "CreateTime"),
      computed<&C::Inoutflag>("Inoutflag", "InOutFlag"),
      property<&C::Auditor>("Auditor", "Auditor"),
      property<&C::Audittime>("Audittime", "AuditTime"),
      property<&C::Status>("Status", "Status").required(),
      property<&C::Paidamount>("Paidamount", "PaidAmount"),
      property<&C::Closeamount>("Closeamount", "CloseAmount"),
      property<&C::Amount>("Amount", "Amount"),
      property<&C::BillCost>("BillCost", "BillCost"),
      property<&C::Referflag>("Referflag", "ReferFlag"),
      property<&C::Referbillid>("Referbillid", "Referbillid"),
      property<&C::Summary>("Summary", "Summary"),
      property<&C::Remarks>("Remarks", "Remarks"),
      verb<&C::Save>("Save", in_out("sZLID"), in_out("iZYCP"), in_out("iCPZT")),
      verb<&C::RGSave>("RGSave", in_out("sZLID"), in_out("iZYCP"), in_out("iCPZT")),
      verb<&C::GetNewId>("GetNewId", out("BID")),
      verb<&C::GetRGNewId>("GetRGNewId", out("BID")),
      verb<&C::LoadById>("LoadById", in_out("BID")),
      verb<&C::LoadRGById>("LoadRGById", in_out("BID")),
  };
  return table;
}

// A half is made at its first use, which may fail like anything else that a verb does.
Long clsInitInBill::Save(const std::string& sZLID, Integer iZYCP, Integer) noexcept {
  return trap([&] { stop_unless_done(save(new_goods(), sZLID, iZYCP)); });
}
Long clsInitInBill::RGSave(const std::string& sZLID, Integer iZYCP, Integer) noexcept {
  return trap([&] { stop_unless_done(save(repair_goods(), sZLID, iZYCP)); });
}
Long clsInitInBill::GetNewId(std::string& BID) noexcept {
  return trap([&] { stop_unless_done(propose_number(new_goods(), BID)); });
}
Long clsInitInBill::GetRGNewId(std::string& BID) noexcept {
  return trap([&] { stop_unless_done(propose_number(repair_goods(), BID)); });
}
Long clsInitInBill::LoadById(const std::string& BID) noexcept {
  return trap([&] { stop_unless_done(load(new_goods(), BID)); });
}
Long clsInitInBill::LoadRGById(const std::string& BID) noexcept {
  return trap([&] { stop_unless_done(load(repair_goods(), BID)); });
}

Long clsInitInBill::save(const Half& half, const std::string& goods_class, Integer slice) noexcept {
  return trap(half.words.save_tag, [&] {
    if (ID.empty()) throw Stop{result_without_id};
    save_header(half);
    remove_slice(half, goods_filter(goods_class, slice));
    for_each_row(colBillItems, [&](const PublicObject& row) {
      worker(half.words.add_row_tag, [&] { add_row(half, static_cast<const StockRow&>(row)); });
    });
  });
}

void clsInitInBill::save_header(const Half& half) const {
  const auto count = execute(sql("select count(ID) as BillCount from {raw} where Id={}", half.words.header_table, ID));
  if (count.value("BillCount").as_long() < 1) {
    worker(half.words.add_tag, [&] { execute(half.insert.text(*this, status::audited)); });
  } else {
    worker(half.words.update_tag, [&] { execute(half.update.text(*this, status::audited)); });
  }
}

void clsInitInBill::remove_slice(const Half& half, const std::string& goods_filter) const {
  const std::string& rows = half.words.row_table;
  if (goods_filter.empty()) {
    execute(sql("delete from {raw} where Billid={}", rows, ID));
    execute(sql("delete from Inventory where Status={} and WID={}", Referflag, Receiver));
  } else {
    execute(
        sql("delete from {raw} where Billid={} and GID in (select ID from Goods where {raw})", rows, ID, goods_filter));
    execute(sql("delete from Inventory where Status={} and WID={like} and GID in (select ID from Goods where {raw})",
                Referflag, Receiver, goods_filter));
  }
}

void clsInitInBill::add_row(const Half& half, const StockRow& row) const {
  execute(half.insert_row.text(row));
  execute(insert_balance({row.Receiver, row.Gid, row.Model1, row.Model2, Referflag, row.Class, row.Unit, row.Qty}));
}

Long clsInitInBill::propose_number(const Half& half, std::string& number) const noexcept {
  return trap(half.words.number_tag, [&] { number = proposed_number(half.words.header_table, kind().prefix); });
}

Long clsInitInBill::load(const Half& half, const std::string& number) noexcept {
  const auto& words = half.words;
  return trap_telling(words.load_tag, [&] {
    ID = number;
    worker(words.read_tag, [&] { read_header(half); });
    stop_unless_done(trap_telling(words.read_rows_tag, [&] {
      read_rows<StockRow>(colBillItems, execute(sql(words.select_rows, ID)), half.row_members_read,
                          [](const StockRow&, const ado::Recordset&) {});
    }));
  });
}

// The repair half has no column for some of the properties; they stay as they are.
void clsInitInBill::read_header(const Half& half) {
  const auto header = execute(sql("select * from {raw} where Id={}", half.words.header_table, ID));
  if (header.at_end()) return;
  for (const Member& member : members()) {
    const auto column = member.read_column();
    if (!column.empty() && header.has(column)) member.read(*this, header.value(column));
  }
}

std::string clsInitInBill::created() const { return as_timestamp(Createtime); }
std::string clsInitInBill::audited() const { return as_timestamp(Audittime); }

}  // namespace brunvik
