#include "brunvik/warehouse/assembly.h"

#include "brunvik/billframe/bill_members.h"
#include "brunvik/foundation/ConnOPT_Function.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/stock/StockPoster.h"
#include "brunvik/stock/moving_average_cost.h"
#include "brunvik/stock/zero_cost_issues.h"

namespace brunvik {

namespace {

// Header and rows name goods, quantity, warehouse and state in the same columns.
constexpr StatementText<1> stored_item{"select * from GoodsBill where Id={}"};
constexpr StatementText<1> stored_parts{"select * from GoodsBillItems where BillId={}"};
constexpr Movement<AssemblyRow> comes_in{Direction::in, &AssemblyRow::WareHouseId, &AssemblyRow::ActualQty,
                                         &AssemblyRow::GoodStutas};
constexpr Movement<AssemblyRow> goes_out{Direction::out, &AssemblyRow::WareHouseId, &AssemblyRow::ActualQty,
                                         &AssemblyRow::GoodStutas};

constexpr AssemblyOperations assembly{{stored_item, comes_in}, {stored_parts, goes_out}};
constexpr AssemblyOperations dismantling{{stored_item, goes_out}, {stored_parts, comes_in}};

}  // namespace

const Members& AssemblyDocument::table() {
  using C = AssemblyDocument;
  static const Members table{
      connection<&C::ADOConn>("ADOConn"),
      collection<&C::colBillItems>("colBillItems"),
      property<&C::ID>("ID", "Id").not_read(),
      property<&C::Manualid>("Manualid", "ManualId"),
      property<&C::Manager>("Manager", "Manager"),
      property<&C::Salesman>("Salesman", "Salesman"),
      property<&C::Creator>("Creator", "Creator"),
      property<&C::Createtime>("Createtime", "CreateTime"),
      property<&C::Auditor>("Auditor", "Auditor"),
      property<&C::Audittime>("Audittime", "AuditTime"),
      property<&C::Status>("Status", "Status").required(),
      property<&C::Referflag>("Referflag", "ReferFlag"),
      property<&C::Referbillid>("Referbillid", "ReferBillID"),
      property<&C::Summary>("Summary", "Summary"),
      property<&C::Remarks>("Remarks", "Remarks"),
      property<&C::Inoutflag>("Inoutflag", "InOutFlag"),
      goods_names<C>(),
      property<&C::Actualqty>("Actualqty", "Actualqty"),
      property<&C::price>("price", "Price"),
      property<&C::Amount>("Amount", "Amount"),
      property<&C::WareHouseID>("WareHouseID", "WareHouseId"),
      property<&C::WareHouseName>("WareHouseName").read_from("WName"),
      property<&C::GoodStatus>("GoodStatus", "GoodStutas"),
      verb<&C::LoadLast>("LoadLast"),
      verb<&C::Save>("Save"),
      verb<&C::SaveAsDraft>("SaveAsDraft"),
      verb<&C::GetBill>("GetBill"),
      verb<&C::Delete>("Delete"),
      verb<&C::GetLastId>("GetLastId", out("LastId")),
      verb<&C::LoadById>("LoadById", in_out("BID")),
      verb<&C::LoadNext>("LoadNext"),
      verb<&C::LoadPreviou>("LoadPreviou"),
      verb<&C::GetNewId>("GetNewId", out("BID")),
      near_id<C>(),
      verb<&C::Audit>("Audit"),
      verb<&C::UndoAudit>("UndoAudit"),
  };
  return table;
}

DocumentForm AssemblyDocument::made_form() const {
  Insert insert_row(AssemblyRow::table(), {},
                    "insert into GoodsBillItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,"
                    "ActualQty,price,Amount,WareHouseId,EquipCode,GoodStutas,remarks) values(");
  RowMembers read = insert_row.members_written();
  read.push_back(&AssemblyRow::table().named("WName"));
  return {{"select * from GoodsBill where Id={}", "delete from GoodsBill where Id={}",
           "select GoodsBillItems.*,warehouse.WName from GoodsBillItems left join Warehouse on "
           "GoodsBillItems.WareHouseId = Warehouse.id where GoodsBillItems.BillId={} order by GoodsBillItems.rownum",
           "delete from GoodsBillItems where BillId={}"},
          Insert(table(), header_sources(kind()),
                 "insert into GoodsBill(Id,ManualId,Manager,Salesman,Creator,CreateTime,Type,InOutFlag,"
                 "Status,[Auditor,AuditTime,]ReferFlag,ReferBillID,Summary,Remarks,Gid,Gbarcode,Gname,Class,Unit,"
                 "Model1,Model2,Actualqty,Price,Amount,WareHouseId,GoodStutas) values("),
          // Saved again in front of its audit, a bill keeps its old summary.
          Update(table(), header_sources(kind()),
                 "update GoodsBill set ManualId = ,Manager = ,Salesman = ,Type = ,InOutFlag = ,Status = ,"
                 "[Auditor = ,AuditTime = ,]ReferFlag = ,[Summary = ,]Remarks = ,Gid = ,Gbarcode = ,Gname = ,Class = ,"
                 "Unit = ,Model1 = ,Model2 = ,Actualqty = ,Price = ,Amount = ,WareHouseId = ,GoodStutas =  where Id="),
          std::move(insert_row),
          std::move(read)};
}

void AssemblyDocument::read_header() {
  read_properties(
      execute(sql("select GoodsBill.*,warehouse.WName from GoodsBill left join Warehouse on "
                  "GoodsBill.WareHouseId = Warehouse.id where GoodsBill.Id={}",
                  ID)));
}

Long AssemblyDocument::Audit() noexcept {
  return trap([&] {
    if (ID.empty()) return;
    execute(sql("update GoodsBill set Status={},Auditor={},AuditTime={} where id={}", status::audited, Auditor,
                Audittime, ID));
    for_each_entering([&](const AssemblyRow& goods) {
      AuditUpdateAverageCost(goods.GId, goods.unit, goods.Class, goods.Model1, goods.Model2, goods.ActualQty,
                             goods.price, no_cost_delta);
      // On the session's road, in upper case: an update that fails there is told, and the audit goes on.
      update_zero_cost_issues(ADOConn, goods.GId, [](std::string statement) { ExecuteNonQuerySql(statement); });
    });
    session_poster().Post(operations().first, ID);
    session_poster().Post(operations().second, ID);
  });
}

Long AssemblyDocument::UndoAudit() noexcept {
  return trap([&] {
    if (ID.empty()) return;
    std::string mark = sql("update GoodsBill set Status={},Auditor='',AuditTime='' where id={}", status::saved, ID);
    ExecuteNonQuerySql(mark);
    for_each_entering([&](const AssemblyRow& goods) {
      UndoAuditUpdateAverageCost(goods.GId, goods.unit, goods.Class, goods.Model1, goods.Model2, goods.ActualQty,
                                 goods.price, no_cost_delta);
    });
    session_poster().Undo(operations().second, ID);
    session_poster().Undo(operations().first, ID);
  });
}

const AssemblyOperations& clsGoodsAssembled::operations() const { return assembly; }

void clsGoodsAssembled::for_each_entering(const std::function<void(const AssemblyRow& goods)>& action) {
  AssemblyRow item;
  item.GId = Gid;
  item.unit = Unit;
  item.Class = Class;
  item.Model1 = Model1;
  item.Model2 = Model2;
  item.ActualQty = Actualqty;
  item.price = price;
  action(item);
}

const AssemblyOperations& clsGoodsDismantled::operations() const { return dismantling; }

void clsGoodsDismantled::for_each_entering(const std::function<void(const AssemblyRow& goods)>& action) {
  for_each_row(colBillItems, [&](const PublicObject& row) { action(static_cast<const AssemblyRow&>(row)); });
}

}  // namespace brunvik
