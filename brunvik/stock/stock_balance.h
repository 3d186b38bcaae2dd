// A balance of the stock as it is laid: one row of Inventory for a warehouse, goods with their models, and a state.
#pragma once

#include <optional>
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
  // What is on hand, where that isn't what came in less what went out.
  std::optional<Single> on_hand = {};
};

// The statement that lays it, without a remark.
std::string insert_balance(const StockBalance& balance);

}  // namespace brunvik
