// A balance of the stock as it is laid: one row of Inventory for a warehouse, goods with their models, and a state.
#pragma once

#include <string>
#include <string_view>

#include "brunvik/ado/types.h"

namespace brunvik {

struct StockBalance {
  std::string_view warehouse, goods, model1, model2;
  Long state;
  std::string_view goods_class;
  // The unit of the quantities.
  std::string_view unit;
  Single in = 0, out = 0;
};

// The statement that lays it, without a remark; what is on hand is what came in less what went out.
std::string insert_balance(const StockBalance& balance);

}  // namespace brunvik
