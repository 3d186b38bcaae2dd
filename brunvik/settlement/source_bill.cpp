#include "brunvik/settlement/source_bill.h"

#include <algorithm>
#include <array>

#include "brunvik/ado/names.h"

namespace brunvik {

namespace {

constexpr std::array stock_codes{
    bill_type::purchase_receipt, bill_type::purchase_return,      bill_type::sales_return,
    bill_type::sales_issue,      bill_type::opening_purchase,     bill_type::opening_purchase_return,
    bill_type::opening_sales,    bill_type::opening_sales_return,
};

constexpr std::array other_codes{
    bill_type::other_receivable,
    bill_type::other_payable,
    bill_type::opening_other_receivable,
    bill_type::opening_other_payable,
};

template <class Codes>
bool contains(const Codes& codes, Long code) {
  return std::find(codes.begin(), codes.end(), code) != codes.end();
}

}  // namespace

void SourceTable::pick(Long code) {
  if (contains(stock_codes, code)) {
    name_ = "stockbill";
  } else if (contains(other_codes, code)) {
    name_ = "OthersIEBill";
  } else if (contains(repair_codes_, code)) {
    name_ = "RgStockBill";
  }
}

std::string_view SourceTable::kind_test() const {
  return ado::same_name(name_, "rgstockbill") ? " and ProcessFlag= " : " and type= ";
}

}  // namespace brunvik
