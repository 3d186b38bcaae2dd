// Transfer of broken goods (坏件调拨) and of repaired goods (修复品调拨) from one warehouse to another. They have the
// shape of the transfer of sound goods, and stand in RGStockBill: ProcessFlag tells them apart. The goods of all rows
// go from the header's Supplier to its Receiver.
//
// Two settings rule them, each by itself. Where 启用进销审核 is true a saved transfer waits at status 2 for its audit,
// else it is saved as audited. Where 启用坏件审核 is 0 each row is posted as it is saved, also that of a draft, and an
// audit posts it once more.
//
// Header update, row insert, the removing of the header and the audit's mark tell the user of their own error. All else
// fails in silence.
#pragma once

#include <string>

#include "brunvik/billframe/class_of.h"
#include "brunvik/warehouse/transfer.h"

namespace brunvik {

class GoodsAllocation : public WarehouseTransfer {
 public:
  // Audits the stored transfer and posts the rows that the object holds; the first that can't be posted ends it. A
  // transfer that is audited already, or isn't there, is left alone and ID is emptied; so is one in CancelAudited that
  // isn't audited. -1 with an empty ID.
  Long UpdateAudited() noexcept;
  Long CancelAudited() noexcept;

  const Members& members() const override;

 protected:
  // The state of the goods moved.
  virtual Long goods_state() const = 0;

  // Takes the posts of the transfer back.
  virtual void take_back() = 0;

  // The goods of a row go out of one warehouse and into the other.
  static Operation<StockRow> movement(std::string_view supplier, std::string_view receiver, Long state);
  Operation<StockRow> movement() const { return movement(Supplier, Receiver, goods_state()); }

  DocumentForm made_form() const;
  StatementText<4> mark_statement() const override;
  Long status_to_save(Saving saving) const override;
  void update_header(Long status) override;
  void save_row(const PublicObject& row) override;
  void remove_header() override;
  void find_last(std::string& last, std::string_view series) override;
  void find_near(const std::string& current, std::string& near, bool next, std::string_view series) override;
};

// Of broken goods. Its undo takes the rows of the object back, from the last to the first.
class clsBrokenAllocate final : public ClassOf<GoodsAllocation, kind::clsBrokenAllocate> {
 protected:
  Long goods_state() const override { return stock_status::broken; }
  void take_back() override;
};

// Of repaired goods. Its undo takes the stored rows back, between the warehouses of the stored header.
class clsRestoreAllocate final : public ClassOf<GoodsAllocation, kind::clsRestoreAllocate> {
 protected:
  Long goods_state() const override { return stock_status::repaired; }
  void take_back() override;
};

}  // namespace brunvik
