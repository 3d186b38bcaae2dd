// The bills that vouchers settle: which table a bill lives in, by the code of its kind, and what stands open of it.
#pragma once

#include <span>
#include <string_view>

#include "brunvik/foundation/Declare_EnumType.h"

namespace brunvik {

// Walks with the rows of a voucher. A row whose code fits no table leaves the table of the row before in place; in
// front of the first row there is none, and the name is empty.
class SourceTable {
 public:
  // The codes of repair documents differ from document to document; all other codes are the same everywhere.
  explicit SourceTable(std::span<const Long> repair_codes) : repair_codes_(repair_codes) {}

  void pick(Long code);

  std::string_view name() const noexcept { return name_; }

  // " and type= " or, on the repair table, " and ProcessFlag= ".
  std::string_view kind_test() const;

 private:
  std::span<const Long> repair_codes_;
  std::string_view name_;
};

}  // namespace brunvik
