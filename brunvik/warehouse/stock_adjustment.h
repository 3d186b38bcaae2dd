// Stock adjustment (调账单): the document that only records. Its audit moves no stock and writes no cost.
#pragma once

#include <string>

#include "brunvik/warehouse/warehouse_document.h"

namespace brunvik {

class clsTZBill final : public ReceivingDocument {
 public:
  // Write the status, and nothing else; with an empty ID nothing at all.
  Long Audit() noexcept;
  Long UndoAudit() noexcept;

  const Kind& kind() const override { return kind::clsTZBill; }
  const Members& members() const override;

 protected:
  const DocumentForm& form() const override;
  void find_last(std::string& last, std::string_view series) override;
};

}  // namespace brunvik
