// Goods of the shop's own stock that change their state in the warehouse, without a customer: new goods found broken
// (仓库新品报修出库), and broken ones repaired (仓库报修修复品入库).
//
// These documents stand in StockBill, and they write Inventory themselves, on the bill's own connection, by the
// quantity and in the unit of the row. The average cost and the cost of the bill stay as they are.
//
// Every verb and worker tells the user of its own error: the notice has its name and "():", without blanks.
#pragma once

#include <string>
#include <string_view>

#include "brunvik/billframe/class_of.h"
#include "brunvik/billframe/telling_document.h"
#include "brunvik/warehouse/warehouse_document.h"

namespace brunvik {

class WarehouseRepairDocument : public TellingDocument<ReceivingDocument> {
 public:
  using Bill::GetNearId;

  // Where the documents of the class are audited, first takes the stored rows out of the stock, whatever the status of
  // the bill: also those of a draft that never came in. Then removes the rows and the header.
  Long Delete() noexcept;

  // Marks the bill, reads its rows anew and moves each. A row that can't be moved ends the audit with the bill marked
  // and the rows before moved. Nothing happens with an empty ID.
  Long Audit() noexcept;

  // Marks the bill as saved, and takes its stored rows out of the stock.
  Long UndoAudit() noexcept;

  const Members& members() const override { return table(); }

 protected:
  // Whether the documents of the class wait for an audit, as a setting that is read as a truth value.
  virtual std::string_view audit_setting() const = 0;

  // Moves the goods of one row from state to state, and back.
  virtual void add_to_stock(const StockRow& row) const = 0;
  virtual void take_from_stock(const StockRow& row) const = 0;

  // The balance of the row's goods in a state.
  bool has_balance(const StockRow& row, Long state) const;
  // Changes it by the row's Qty; where there is none, nothing changes.
  void change_balance(const StockRow& row, Long state, StatementText<2> change) const;

  const DocumentForm& form() const override = 0;
  DocumentForm made_form() const;

  Long status_to_save(Saving saving) const override;
  const WorkerTags& tags() const override;

  // The name of a worker has that of the class in it, in the place of {}.
  std::string shown(std::string_view tag) const override;

  void insert_header(Long status) override;
  void update_header(Long status) override;
  void save_row(const PublicObject& row) override;

 private:
  static const Members& table();

  void add_inventory(const StockRow& row) const;
  void reduce_inventory() const;

  // What the header was saved with, for the rows behind it.
  Long saved_as_ = status::unsaved;
};

// New goods found broken: they leave state 0 and come into state 1. Where state 0 has a balance and state 1 has none,
// they leave and arrive nowhere.
class clsWareHouseRepairBill final : public ClassOf<WarehouseRepairDocument, kind::clsWareHouseRepairBill> {
 protected:
  std::string_view audit_setting() const override;
  void add_to_stock(const StockRow& row) const override;
  void take_from_stock(const StockRow& row) const override;
};

// Broken goods repaired: from state 1 into state 2. The columns of what came in and what went out are kept the other
// way round here, and a balance that is laid in state 1 counts up where one that is there counts down.
class clsWareHouseRestoreBill final : public ClassOf<WarehouseRepairDocument, kind::clsWareHouseRestoreBill> {
 protected:
  std::string_view audit_setting() const override;
  void add_to_stock(const StockRow& row) const override;
  void take_from_stock(const StockRow& row) const override;
};

}  // namespace brunvik
