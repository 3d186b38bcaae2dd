#include "schema/tables.h"

#include <vector>

#include "schema/families.h"

namespace brunvik::schema {

std::span<const Table> tables() {
  static const std::vector<Table> all = [] {
    std::vector<Table> list;
    for (const auto family : {master_tables(), stock_tables(), trade_tables(), settlement_tables(), repair_tables(),
                              borrowing_tables(), logistics_tables()}) {
      list.insert(list.end(), family.begin(), family.end());
    }
    return list;
  }();
  return all;
}

}  // namespace brunvik::schema
