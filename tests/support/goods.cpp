#include "tests/support/goods.h"

#include <utility>

#include "tests/support/scripted_connection.h"

namespace brunvik::test {

std::vector<std::string> goods_columns() {
  return {"id",        "Gname",         "Class",       "Enabled",       "GType",      "Unit",
          "Price",     "Purchaseprice", "RetailPrice", "MinInventory",  "Mnemonic",   "MaxInventory",
          "ShelfLife", "Model1",        "Model2",      "UnitConverter", "MinUnit",    "PriceA",
          "PriceB",    "PriceC",        "PriceD",      "PriceE",        "Popularity", "Guarantee",
          "Brand",     "Barcode",       "AverageCost", "TecParameters"};
}

ado::Recordset goods(const std::string& id, const std::string& unit) {
  std::vector<ado::Value> cells(goods_columns().size(), ado::Null());
  cells[0] = id;
  cells[5] = unit;
  return {goods_columns(), std::move(cells)};
}

ado::Recordset factor(const ado::Value& factor) {
  return table({"id", "Unit", "UnitConverter"}, {{"G1", "unit", factor}});
}

}  // namespace brunvik::test
