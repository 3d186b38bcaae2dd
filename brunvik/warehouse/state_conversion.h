// State conversion: goods change the state in which they stand in the stock (sound, broken, repaired), perhaps the
// warehouse, too. It is audited as it is saved: a saved conversion is always in stock, and each change takes it out of
// the stock first.
#pragma once

#include <string>

#include "brunvik/warehouse/internal_movement.h"

namespace brunvik {

class clsGoodsConvertBill final : public InternalMovement {
 public:
  std::string OldWareHouse, NewWareHouse;
  // "0", "1", "2" or 新品, 坏件, 修复品; any other text is sound stock. The columns of the managers keep them.
  std::string OldStatus, NewStatus;

  // Saves with status 3 whatever the property holds. A bill that is there is taken out of the stock, and its rows go;
  // then each row is inserted and posted, out of its Supplier in the old state and into its Receiver in the new one. A
  // row that fails ends nothing: the result is that of the last post. A failure in front of the rows leaves the bill
  // with its stock taken back.
  using Bill::Save;

  // Takes the bill out of the stock, whatever comes of it, and removes rows and header. With an empty ID the statements
  // go out as well and find nothing.
  using Bill::Delete;

  const Kind& kind() const override { return kind::clsGoodsConvertBill; }
  const Members& members() const override;

 protected:
  const DocumentForm& form() const override;
  Long status_to_save(Saving) const override { return status::audited; }
  void save_rows() override;
  void remove_rows() override;

 private:
  // It has no draft.
  using Bill::SaveAsDraft;
};

}  // namespace brunvik
