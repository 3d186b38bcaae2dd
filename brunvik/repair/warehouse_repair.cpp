#include "brunvik/repair/warehouse_repair.h"

#include "brunvik/foundation/Declare_Const.h"
#include "brunvik/foundation/GetValue_Function.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/stock/stock_balance.h"
#include "brunvik/warehouse/warehouse_members.h"

namespace brunvik {

const Members& WarehouseRepairDocument::table() {
  using C = WarehouseRepairDocument;
  static const Members table = warehouse_members<C>(receiving_members<C>({near_id<C>()}));
  return table;
}

DocumentForm WarehouseRepairDocument::made_form() const {
  return warehouse_form(kind(), table(), "Rmanager", WarehouseColumn::Receiver,
                        "insert into StockBillItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,"
                        "ActualQty,qty,price,Amount,Receiver,Equipcode,Accessory,remarks) values(",
                        {});
}

// ------------------------------------------------------------------------------------------------------- the workers

Long WarehouseRepairDocument::status_to_save(Saving saving) const {
  if (saving == Saving::draft) return status::draft;
  return GetKeyFlag(audit_setting()) ? status::saved : status::audited;
}

const WorkerTags& WarehouseRepairDocument::tags() const {
  static constexpr WorkerTags tags{.save_bill = "Save{}():",
                                   .save_draft = "Save{}ForSketch():",
                                   .insert_header = "Add{}():",
                                   .update_header = "Update{}():",
                                   .save_rows = "Save{}Items():",
                                   .read_header = "Get{}():",
                                   .read_rows = "Get{}Items():",
                                   .remove_rows = "Delete{}Items():",
                                   .find_last = "GetLastId():",
                                   .find_next = "GetNearId():",
                                   .find_previous = "GetNearId():"};
  return tags;
}

std::string WarehouseRepairDocument::shown(std::string_view tag) const {
  constexpr std::string_view cls = "cls", place = "{}";
  std::string text(tag);
  if (const auto at = text.find(place); at != std::string::npos) {
    text.replace(at, place.size(), kind().class_name.substr(cls.size()));
  }
  return text;
}

void WarehouseRepairDocument::insert_header(Long status) {
  saved_as_ = status;
  TellingDocument::insert_header(status);
}

void WarehouseRepairDocument::update_header(Long status) {
  saved_as_ = status;
  TellingDocument::update_header(status);
}

void WarehouseRepairDocument::save_row(const PublicObject& row) {
  telling("Add{}Items():", [&] {
    Document::save_row(row);
    const bool at_once = GetKeyValue(config::audit_of_warehouse) == "0";
    if (at_once && saved_as_ > status::draft) add_inventory(static_cast<const StockRow&>(row));
  });
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
    telling("Delete{}AndItems():", [&] {
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
