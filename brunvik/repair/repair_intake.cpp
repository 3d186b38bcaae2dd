#include "brunvik/repair/repair_intake.h"

#include <array>
#include <utility>

#include "brunvik/billframe/dealt_with.h"
#include "brunvik/foundation/SqlOPT_Function.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/late_binding.h"

namespace brunvik {

namespace {

const Insert& link_insert() {
  static const Insert insert(
      RGBxrkSaleInList::table(), {},
      "insert into RGStockBillList(RGBxrkId,StockId,RGStockType,StockType,RGStockRowNum,StockRowNum,Goodsid,unit,"
      "GoodStutas,Qty) values(");
  return insert;
}

void complete_link(RGBxrkSaleInList& link, const ado::Recordset& set) {
  point_to_first(set, {{"RGStockRowNum", &link.RgstockRownum},
                       {"RGStockType", &link.RGStocktype},
                       {"StockRowNum", &link.StockRownum},
                       {"StockType", &link.Stocktype}});
}

double in_base_units(const RGBxrkSaleInList& link) {
  return GoodsUnitConverter(link.GoodsId, link.Unit).to_double() * static_cast<double>(link.Qty);
}

}  // namespace

Members RepairIntake::intake_members(MemberGroup behind_connection, MemberGroup verbs) {
  using C = RepairIntake;
  MemberGroup own_verbs{verb<&C::GetRgStockBillitems>("GetRgStockBillitems", in("cBillid"))};
  own_verbs.insert(own_verbs.end(), verbs.begin(), verbs.end());
  return repair_members({
      .behind_connection = std::move(behind_connection),
      .behind_kind = {property<&C::CustomerBH>("CustomerBH", "Supplier"), property<&C::Fixtype>("Fixtype", "FixType"),
                      property<&C::Needdays>("Needdays", "NeedDays"), property<&C::QtyStutas>("QtyStutas", "QtyStutas"),
                      property<&C::RuKuRen>("RuKuRen", "RManager"), property<&C::JingBanRen>("JingBanRen", "Salesman")},
      .behind_creation = {property<&C::BaoXiuDate>("BaoXiuDate", "BaoXiuDate")},
      .verbs = std::move(own_verbs),
  });
}

const Members& RepairIntake::members() const {
  static const Members table = intake_members();
  return table;
}

DocumentForm RepairIntake::made_form() const {
  return repair_form(
      kind(), members(),
      {.insert = "insert into RGStockBill(Id,ManualId,Supplier,ProcessFlag,Salesman,RManager,FixType,NeedDays,"
                 "InOutFlag,Status,Creator,CreateTime,Summary,Remarks,[Auditor,AuditTime,]QtyStutas,BaoXiuDate) "
                 "values(",
       // The person in charge of an opening balance can't be changed once it is stored.
       .update = "Update RGStockBill set ManualId = ,Supplier = ,ProcessFlag = ,<Salesman = ,>RManager = ,FixType = ,"
                 "NeedDays = ,Status = ,Summary = ,Remarks = ,[Auditor = ,AuditTime = ,]BaoXiuDate =  where Id=",
       .insert_row = "Insert into RGStockBillItems(BillId,RowNum,GId,GName,GBarcode,Class,Model1,Model2,unit,qty,price,"
                     "Amount,StoreHouse,BrokenDspt,FixMeans,OutFactoryDate,EquipCode,BuyDate,Accessory,remarks,YfQty" +
                     std::string(own_row_columns()) + ") values( ",
       .reads_rows_in_order = !kind().opening});
}

const Members& clsRGStockBxrk::members() const {
  using C = clsRGStockBxrk;
  static const Members table =
      intake_members({collection<&C::colSaleInItems>("colSaleInItems")},
                     {
                         verb<&C::GetRGBxrkSaleInBillItems>("GetRGBxrkSaleInBillItems", in("RGBxrkId"), in("SaleInId")),
                         verb<&C::AddRGBxrkSaleInQty>("AddRGBxrkSaleInQty", in("objBillItems")),
                         verb<&C::ReduceRGBxrkSaleInQty>("ReduceRGBxrkSaleInQty", in("objBillItems")),
                         verb<&C::DeteleRGBxrkSaleInList>("DeteleRGBxrkSaleInList", in("SaleInId")),
                         verb<&C::SetRGBxrkSaleInClosedTag>("SetRGBxrkSaleInClosedTag", in("BillId")),
                         verb<&C::UndoSetRGBxrkSaleInClosedTag>("UndoSetRGBxrkSaleInClosedTag", in("BillId")),
                         verb<&C::ExitReturnGoods>("ExitReturnGoods", in("BillId")),
                         verb<&C::SaveRGBxrkSaleInLists>("SaveRGBxrkSaleInLists", in("RGBxrkSaleInLists")),
                     });
  return table;
}

Long clsRGStockBxrk::GetRGBxrkSaleInBillItems(const std::string& RGBxrkId, const std::string& SaleInId) noexcept {
  return trap([&] {
    brunvik::read_rows<RGBxrkSaleInList>(
        colSaleInItems,
        execute(sql("select * from RGStockBillList where RGBxrkId={} and StockId={} and StockType={} order by "
                    "StockRowNum",
                    RGBxrkId, SaleInId, bill_type::sales_return)),
        link_insert().members_written(), complete_link);
  });
}

Long clsRGStockBxrk::AddRGBxrkSaleInQty(const RGBxrkSaleInList& objBillItems) noexcept {
  return trap([&] {
    execute(sql("update RGStockBillItems set yfQty=yfQty+{} where BillId={} and RowNum={} and FixMeans={} and GId={}",
                in_base_units(objBillItems), objBillItems.RGBxrkId, objBillItems.RgstockRownum, objBillItems.Goodstutas,
                objBillItems.GoodsId));
  });
}

Long clsRGStockBxrk::ReduceRGBxrkSaleInQty(const RGBxrkSaleInList& objBillItems) noexcept {
  return trap([&] {
    execute(sql("update RGStockBillItems set yfQty=yfQty-{} where BillId={} and RowNum={} and FixMeans={} and GID={}",
                in_base_units(objBillItems), objBillItems.RGBxrkId, objBillItems.RgstockRownum, objBillItems.Goodstutas,
                objBillItems.GoodsId));
  });
}

Long clsRGStockBxrk::DeteleRGBxrkSaleInList(const std::string& SaleInId) noexcept {
  return trap([&] { execute(sql("delete from RGStockBillList where StockId={}", SaleInId)); });
}

Long clsRGStockBxrk::SetRGBxrkSaleInClosedTag(const std::string& BillId) noexcept {
  return trap([&] {
    if (has_row_left(execute(sql("select * from RGStockBillItems where BillId={}", BillId)), "Qty", "YfQty")) {
      throw Stop{1};
    }
    execute(sql("update RGStockBill set QtyStutas=1 where Id={}", BillId));
  });
}

Long clsRGStockBxrk::UndoSetRGBxrkSaleInClosedTag(const std::string& BillId) noexcept {
  return trap([&] { execute(sql("update RGStockBill set QtyStutas=0 where Id={}", BillId)); });
}

Long clsRGStockBxrk::ExitReturnGoods(const std::string& BillId) noexcept {
  return trap([&] {
    if (!has_row_dealt_with(execute(sql("select * from RGStockBillItems where BillId={}", BillId)), "YfQty")) {
      throw Stop{1};
    }
  });
}

Long clsRGStockBxrk::SaveRGBxrkSaleInLists(const Collection<RGBxrkSaleInList>& RGBxrkSaleInLists) noexcept {
  return trap([&] {
    for (const RGBxrkSaleInList& link : RGBxrkSaleInLists) execute(link_insert().text(link));
  });
}

}  // namespace brunvik
