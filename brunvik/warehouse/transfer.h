// Transfer (调拨): goods move from one warehouse to another, at their own price. Its audit and its undo look at the
// status that is stored, so that they may be repeated: the second does nothing but empty ID.
#pragma once

#include <string>
#include <utility>

#include "brunvik/warehouse/internal_movement.h"

namespace brunvik {

// What the transfers share, of sound goods and of others: the two ends of the header, and the verbs.
class WarehouseTransfer : public InternalMovement {
 public:
  // The warehouse that gives and the one that takes.
  std::string Supplier, Receiver;
  // The person at either end.
  std::string SManager, RManager;

 protected:
  template <class C>
  static Members transfer_members(MemberGroup behind_audit = {}) {
    MemberGroup verbs = Members::group({
        saving_and_audit_by_status<C>(),
        std::move(behind_audit),
    });
    return movement_members<C>(
        {property<&C::Supplier>("Supplier", "Supplier"), property<&C::Receiver>("Receiver", "Receiver"),
         property<&C::SManager>("SManager", "SManager"), property<&C::RManager>("RManager", "RManager")},
        std::move(verbs));
  }
};

// The stock goes by the warehouses of each row, not by those of the header.
class clsDbBill final : public WarehouseTransfer {
 public:
  // Audits the stored transfer with the rows that the object holds, from the last to the first: each gets its cost and
  // is posted, out of its Supplier, then into its Receiver. A row that can't be posted doesn't keep the others from it:
  // the result is that of the first row, which comes last. The bill's cost is written at the end. -1 with an empty ID.
  Long UpdateAudited() noexcept;

  // Takes the audit back: the status, the costs again from the first row to the last, then the stock by the saved rows.
  Long CancelAudited() noexcept;

  // Reads the rows of ID again, and nothing else.
  Long GetDbBillItems() noexcept;

  const Kind& kind() const override { return kind::clsDbBill; }
  const Members& members() const override;

 protected:
  const DocumentForm& form() const override;
  const Operation<StockRow>* stock_operation() const override { return &operation::Transfer; }
};

}  // namespace brunvik
