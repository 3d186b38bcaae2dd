#include "brunvik/repair/warehouse_repair.h"

#include "brunvik/foundation/Declare_Const.h"
#include "brunvik/foundation/GetValue_Function.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/stock/stock_balance.h"
#include "brunvik/warehouse/warehouse_members.h"

namespace brunvik {

const Members& WarehouseRepairDocument::table() {
  using C = WarehouseRepairDocument;
  static const Members table = warehouse_members<C>(
      {.person = property<&C::RManager>("RManager", "RManager"),
       .money = {property<&C::Paidamount>("Paidamount"), property<&C::BillCost>("BillCost", "BillCost")},
       .behind_saving = {verb<&C::GetBill>("GetBill")},
       .behind_number = {near_id<C>()},
       .audit = {verb<&C::Audit>("Audit"), verb<&C::UndoAudit>("UndoAudit")}});
  return table;
}

DocumentForm WarehouseRepairDocument::warehouse_repair_form(const Kind& kind) {
  return warehouse_form(kind, table(), "Rmanager", WarehouseColumn::Receiver,
                        "insert into StockBillItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,"
                        "ActualQty,qty,price,Amount,Receiver,Equipcode,Accessory,remarks) values(",
                        {});
}

std::string WarehouseRepairDocument::tag_text(std::string_view before, std::string_view behind) const {
  constexpr std::string_view cls = "cls";
  return std::string(before).append(kind().class_name.substr(cls.size())).append(behind).append("():");
}

// ------------------------------------------------------------------------------------------------------- the workers

Long WarehouseRepairDocument::status_to_save(Saving saving) const {
  if (saving == Saving::draft) return status::draft;
  return GetKeyFlag(audit_setting()) ? status::saved : status::audited;
}

void WarehouseRepairDocument::save_header(Saving saving) {
  worker(tag("Save", saving == Saving::draft ? "ForSketch" : ""), [&] { Document::save_header(saving); });
}

void WarehouseRepairDocument::insert_header(Long status) {
  saved_as_ = status;
  worker(tag("Add"), [&] { Document::insert_header(status); });
}

void WarehouseRepairDocument::update_header(Long status) {
  saved_as_ = status;
  worker(tag("Update"), [&] { Document::update_header(status); });
}

void WarehouseRepairDocument::save_rows() {
  worker(tag("Save", "Items"), [&] { Document::save_rows(); });
}

void WarehouseRepairDocument::save_row(const PublicObject& row) {
  worker(tag("Add", "Items"), [&] {
    Document::save_row(row);
    const bool at_once = GetKeyValue(config::audit_of_warehouse) == "0";
    if (at_once && saved_as_ > status::draft) add_inventory(static_cast<const StockRow&>(row));
  });
}

void WarehouseRepairDocument::read_header() {
  worker(tag("Get"), [&] { Document::read_header(); });
}

void WarehouseRepairDocument::read_rows() {
  worker(tag("Get", "Items"), [&] { Document::read_rows(); });
}

void WarehouseRepairDocument::remove_rows() {
  worker(tag("Delete", "Items"), [&] { Document::remove_rows(); });
}

void WarehouseRepairDocument::find_last(std::string& last, std::string_view series) {
  worker("GetLastId():", [&] { Document::find_last(last, series); });
}

void WarehouseRepairDocument::find_near(const std::string& current, std::string& near, bool next,
                                        std::string_view series) {
  worker("GetNearId():", [&] { Document::find_near(current, near, next, series); });
}

void WarehouseRepairDocument::add_inventory(const StockRow& row) const {
  worker("AddInventory():", [&] { add_to_stock(row); });
}

void WarehouseRepairDocument::reduce_inventory() const {
  worker("ReduceInventory():", [&] {
    Collection<StockRow> stored;
    brunvik::read_rows<StockRow>(stored, execute(sql(stored_stock_rows, ID)), members_read_back(form().insert_row),
                                 [](const StockRow&, const ado::Recordset&) {});
    for (const StockRow& row : stored) take_from_stock(row);
  });
}

// --------------------------------------------------------------------------------------------------------- the verbs

Long WarehouseRepairDocument::Delete() noexcept {
  return trap([&] {
    worker(tag("Delete", "AndItems"), [&] {
      if (GetKeyFlag(audit_setting())) reduce_inventory();
      remove_rows();
      remove_header();
    });
  });
}

Long WarehouseRepairDocument::Audit() noexcept {
  return trap("Audit():", [&] {
    if (ID.empty()) return;
    mark(status::audited);
    read_rows();
    for (const StockRow& row : colBillItems) add_inventory(row);
  });
}

Long WarehouseRepairDocument::UndoAudit() noexcept {
  return trap("UndoAudit():", [&] {
    if (ID.empty()) return;
    mark(status::saved);
    reduce_inventory();
  });
}

// ------------------------------------------------------------------------------------------------------- the balances

bool WarehouseRepairDocument::has_balance(const StockRow& row, Long state) const {
  return !execute(sql("select * from Inventory where WID={} and GId={} and Model1={} and Model2={} and Status={}",
                      row.Receiver, row.Gid, row.Model1, row.Model2, state))
              .at_end();
}

void WarehouseRepairDocument::change_balance(const StockRow& row, Long state, StatementText<2> change) const {
  const Statement settings = sql(change, row.Qty, row.Qty);
  execute(sql("update Inventory set {raw} where WID={} and GId={} and Model1={} and Model2={} and Status={}",
              std::string_view(settings), row.Receiver, row.Gid, row.Model1, row.Model2, state));
}

const DocumentForm& clsWareHouseRepairBill::form() const {
  static const DocumentForm form = warehouse_repair_form(kind());
  return form;
}

std::string_view clsWareHouseRepairBill::audit_setting() const { return config::audit_of_trade; }

void clsWareHouseRepairBill::add_to_stock(const StockRow& row) const {
  if (!has_balance(row, stock_status::sound)) {
    const auto lay = [&](Long state, Single in, Single out) {
      execute(insert_balance({row.Receiver, row.Gid, row.Model1, row.Model2, state, row.Class, row.Unit, in, out}));
    };
    lay(stock_status::sound, 0, row.Qty);
    lay(stock_status::broken, row.Qty, 0);
    return;
  }
  change_balance(row, stock_status::sound, "OutQty = OutQty + {},CurrentQty = CurrentQty-{}");
  change_balance(row, stock_status::broken, "InQty = InQty + {},CurrentQty = CurrentQty+{}");
}

void clsWareHouseRepairBill::take_from_stock(const StockRow& row) const {
  change_balance(row, stock_status::sound, "OutQty = OutQty - {},CurrentQty = CurrentQty+{}");
  change_balance(row, stock_status::broken, "InQty = InQty - {},CurrentQty = CurrentQty-{}");
}

const DocumentForm& clsWareHouseRestoreBill::form() const {
  static const DocumentForm form = warehouse_repair_form(kind());
  return form;
}

std::string_view clsWareHouseRestoreBill::audit_setting() const { return config::audit_of_warehouse; }

void clsWareHouseRestoreBill::add_to_stock(const StockRow& row) const {
  const auto lay = [&](Long state, Single in, Single out) {
    execute(insert_balance({row.Receiver, row.Gid, row.Model1, row.Model2, state, row.Class, row.Unit, in, out,
                            /*on_hand=*/row.Qty}));
  };
  if (!has_balance(row, stock_status::repaired)) {
    lay(stock_status::repaired, 0, row.Qty);
  } else {
    change_balance(row, stock_status::repaired, "OutQty = OutQty - {},CurrentQty = CurrentQty + {}");
  }
  if (!has_balance(row, stock_status::broken)) {
    lay(stock_status::broken, row.Qty, 0);
  } else {
    change_balance(row, stock_status::broken, "InQty = InQty + {},CurrentQty = CurrentQty-{}");
  }
}

void clsWareHouseRestoreBill::take_from_stock(const StockRow& row) const {
  change_balance(row, stock_status::repaired, "OutQty = OutQty + {},CurrentQty = CurrentQty-{}");
  change_balance(row, stock_status::broken, "InQty = InQty + {},CurrentQty = CurrentQty+{}");
}

}  // namespace brunvik
