#include "brunvik/purchasing/cost_sharing.h"

#include <map>
#include <string_view>

#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/late_binding.h"
#include "brunvik/purchasing/purchase_receipt.h"

namespace brunvik {

namespace {

const Insert& insert_share() {
  static const Insert insert(GoodsShareRow::table(), {},
                             "insert into PuchaseBillItems(Billid,CostId,GRowNum,GId,GoodQty,ShareId,Sharecost,"
                             "ShareMethod,UseShare) values(");
  return insert;
}

// The rows of each goods id, in the order of their first rows. Ids are compared as they are.
std::vector<std::vector<StockRow*>> by_goods(Collection<StockRow>& rows) {
  std::vector<std::vector<StockRow*>> groups;
  std::map<std::string_view, std::size_t> place_of;
  for_each_row(rows, [&](PublicObject& object) {
    auto& row = static_cast<StockRow&>(object);
    const auto [found, added] = place_of.emplace(row.Gid, groups.size());
    if (added) groups.emplace_back();
    groups[found->second].push_back(&row);
  });
  return groups;
}

}  // namespace

const Members& clsShareCost::members() const {
  using C = clsShareCost;
  static const Members table{
      connection<&C::ADOConn>("ADOConn"),
      property<&C::ID>("ID", "Id"),
      property<&C::Vendors>("Vendors", "Vendors"),
      property<&C::VendorsName>("VendorsName").read_from("FullName"),
      property<&C::Creator>("Creator", "Creator"),
      property<&C::Createtime>("Createtime", "CreateTime"),
      property<&C::BillCost>("BillCost", "BillCost"),
      property<&C::PurchaseBill>("PurchaseBill", "PurChaseBill"),
      property<&C::PurchaseAmount>("PurchaseAmount", "PurChaseAmount"),
      property<&C::Referflag>("Referflag", "ReferFlag"),
      property<&C::Referbillid>("Referbillid", "ReferBillID"),
      property<&C::Summary>("Summary", "Summary"),
      property<&C::Remarks>("Remarks", "Remarks"),
      collection<&C::colBillItems>("colBillItems"),
      collection<&C::colBillCostItems>("colBillCostItems"),
      collection<&C::colBillGoodCostItems>("colBillGoodCostItems"),
      verb<&C::Save>("Save"),
      verb<&C::Delete>("Delete"),
      verb<&C::LoadById>("LoadById", optional(in_out("BID"), ""), optional(in_out("PurID"), "")),
      verb<&C::GetPurchaseInBillItems>("GetPurchaseInBillItems", in("BillId")),
      verb<&C::DeleteShareCostBill>("DeleteShareCostBill"),
      verb<&C::DeleteShareCostBillItems>("DeleteShareCostBillItems"),
      verb<&C::DeleteShareGoodCostBillItems>("DeleteShareGoodCostBillItems"),
      verb<&C::AuditShareCostBillItems>("AuditShareCostBillItems", in("bAudit")),
      verb<&C::GetNewId>("GetNewId", out("BID")),
  };
  return table;
}

const DocumentForm& clsShareCost::form() const {
  static const DocumentForm form = [this] {
    return form_reading_back(
        {"select * from PurchaseShareCost where Id={}", "delete from PurchaseShareCost where Id={}",
         "select * from PurChaseCostItems where BillId={} order by Rownum",
         "delete from PurChaseCostItems where BillId={}"},
        Insert(members(), {},
               "insert into PurchaseShareCost(Id,Vendors,Creator,CreateTime,BillCost,PurChaseBill,PurChaseAmount,"
               "ReferFlag,ReferBillID,Summary,Remarks) values("),
        Update(members(), {},
               "Update PurchaseShareCost set Vendors=,Creator=,CreateTime=,BillCost=,PurChaseBill=,PurChaseAmount=,"
               "ReferFlag=,ReferBillID=,Summary=,Remarks= where Id="),
        Insert(CostKindRow::table(), {},
               "insert into PurChaseCostItems(BillId,RowNum,CostId,CostName,Amount,ShareMethod,remarks) "
               "values("));
  }();
  return form;
}

// The rows go behind the header, after an insert as well.
void clsShareCost::update_header(Long status) { execute(form().update.text(*this, status)); }

void clsShareCost::save_rows() {
  remove_rows();
  remove_shares();
  Document::save_rows();
  for_each_row(colBillGoodCostItems, [&](const PublicObject& row) { execute(insert_share().text(row)); });
}

void clsShareCost::read_rows() {
  Document::read_rows();
  brunvik::read_rows<GoodsShareRow>(colBillGoodCostItems,
                                    execute(sql("select * from PuchaseBillItems where BillId={} order by Grownum", ID)),
                                    insert_share().members_written(), [](PublicObject&, const ado::Recordset&) {});
}

void clsShareCost::remove_shares() { execute(sql("delete from PuchaseBillItems where BillId={}", ID)); }

Long clsShareCost::Delete() noexcept {
  return trap([&] {
    remove_header();
    remove_rows();
    remove_shares();
  });
}

Long clsShareCost::DeleteShareCostBill() noexcept {
  return trap([&] { remove_header(); });
}

Long clsShareCost::DeleteShareCostBillItems() noexcept {
  return trap([&] { remove_rows(); });
}

Long clsShareCost::DeleteShareGoodCostBillItems() noexcept {
  return trap([&] { remove_shares(); });
}

Long clsShareCost::LoadById(const std::string& BID, const std::string& PurID) noexcept {
  return trap([&] {
    std::string statement =
        "select PurchaseShareCost.*,ContactsCompany.FullName from PurchaseShareCost left join "
        "ContactsCompany on PurchaseShareCost.Vendors=ContactsCompany.Id where 1=1 ";
    if (!BID.empty()) statement += sql(" and PurchaseShareCost.Id={}", BID);
    if (!PurID.empty()) statement += sql(" and PurchaseShareCost.Purchasebill={}", PurID);
    if (!BID.empty()) ID = BID;
    read_properties(execute(statement));
    read_rows();
  });
}

Long clsShareCost::GetPurchaseInBillItems(const std::string& BillId) noexcept {
  return trap([&] { PurchaseReceipt::read_receipt_rows(colBillItems, ADOConn, BillId); });
}

Long clsShareCost::AuditShareCostBillItems(bool bAudit) noexcept {
  return trap([&] {
    if (PurchaseBill.empty() || ID.empty()) throw Stop{result_without_id};
    for (const auto& rows : by_goods(colBillItems)) share_over(rows, bAudit);
    UpdateBillCost(PurchaseBill, bill_type::purchase_receipt, CalcBillCost(colBillItems, any_stock_document));
  });
}

void clsShareCost::share_over(const std::vector<StockRow*>& rows, bool audit) {
  Single quantity = 0;
  Money amount;
  for (const StockRow* row : rows) {
    quantity = static_cast<Single>(static_cast<double>(quantity) + base_units(*row));
    amount += row->Amount;
  }
  const StockRow& first = *rows.front();
  const Money price =
      quantity == 0 ? first.price : Money::from_double(amount.to_double() / static_cast<double>(quantity));
  const auto change_average = audit ? AuditUpdateAverageCost : UndoAuditUpdateAverageCost;
  const Money average =
      change_average(first.Gid, first.Unit, first.Class, first.Model1, first.Model2, quantity, price, first.ShareCost);
  for (StockRow* row : rows) {
    row->Cost = cost_at_average(average, *row);
    if (!audit) row->ShareCost = Money();
    UpdateBillItemCost(PurchaseBill, row->Rownum, row->Cost, row->ShareCost);
  }
}

}  // namespace brunvik
