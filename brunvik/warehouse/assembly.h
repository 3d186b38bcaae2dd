// Assembly and dismantling: goods become other goods. The header holds one item, the rows its parts. An assembly takes
// the parts out of the stock and the item in; a dismantling takes the item out and the parts in. The side that comes in
// moves its average at its own price; the side that leaves has no cost step, and neither document writes a cost.
#pragma once

#include <functional>
#include <string>

#include "brunvik/billframe/class_of.h"
#include "brunvik/billframe/document.h"
#include "brunvik/warehouse/assembly_row.h"

namespace brunvik {

// What a document does to the stock: first the item of the header, second the rows. An undo goes the other way round.
struct AssemblyOperations {
  Operation<AssemblyRow> first, second;
};

class AssemblyDocument : public Document {
 public:
  Collection<AssemblyRow> colBillItems;
  std::string Manager, Salesman;
  Long Referflag = 0;
  std::string Referbillid;
  // Filled by reading; what is written is the side of the kind.
  Integer Inoutflag = 0;
  // The item.
  std::string Gid, Gbarcode, Gname, Class, Model1, Model2;
  // The unit of its quantity.
  std::string Unit;
  Single Actualqty = 0;
  // For one unit.
  Money price;
  Money Amount;
  // Its warehouse, and the name of that, which only a read fills.
  std::string WareHouseID, WareHouseName;
  // The state in which it stands in the stock.
  Long GoodStatus = 0;

  using Bill::GetBill;
  using Bill::GetNearId;

  // Marks the bill; takes the goods that come in, as the object holds them, into the average, and mends the cost of
  // earlier sales of each; then moves the stock by what the database holds. An average that can't be worked out ends
  // nothing. Nothing happens with an empty ID.
  Long Audit() noexcept;

  // Clears auditor and time in the table, on the session's road; takes the same goods out of the average; gives the
  // stock back, the rows first.
  Long UndoAudit() noexcept;

  const Members& members() const override { return table(); }

 protected:
  static const Members& table();
  DocumentForm made_form() const;

  RowCollection& rows() override { return colBillItems; }
  void read_header() override;

  virtual const AssemblyOperations& operations() const = 0;

  // Calls the action with each goods that comes in.
  virtual void for_each_entering(const std::function<void(const AssemblyRow& goods)>& action) = 0;
};

class clsGoodsAssembled final : public ClassOf<AssemblyDocument, kind::clsGoodsAssembled> {
 protected:
  const AssemblyOperations& operations() const override;
  void for_each_entering(const std::function<void(const AssemblyRow& goods)>& action) override;
};

class clsGoodsDismantled final : public ClassOf<AssemblyDocument, kind::clsGoodsDismantled> {
 protected:
  const AssemblyOperations& operations() const override;
  void for_each_entering(const std::function<void(const AssemblyRow& goods)>& action) override;
};

}  // namespace brunvik
