#include "brunvik/billframe/bill_number.h"

#include <array>
#include <cstdio>

#include "brunvik/ado/clock.h"
#include "brunvik/foundation/GetValue_Function.h"
#include "brunvik/foundation/sql_text.h"

namespace brunvik {

std::string proposed_number(std::string_view table, std::string_view column, std::string_view prefix) {
  const Long number =
      Get_BillMaxId(table, column, sql(" where {raw} like '{raw}%' ", column, prefix), std::string_view());
  std::array<char, 16> running{};
  std::snprintf(running.data(), running.size(), "%05d", number);
  return std::string(prefix) + ado::bill_day_text(ado::now()) + running.data();
}

std::string aggregated_number(const ado::Recordset& set, std::string_view name) {
  return set.at_end() ? std::string() : set.value(name).joined_text();
}

}  // namespace brunvik
