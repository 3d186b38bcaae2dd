#include "bench/life.h"

#include <array>
#include <cstdio>
#include <stdexcept>
#include <string_view>
#include <type_traits>

#include "bench/books.h"
#include "brunvik/purchasing/purchase_receipt.h"
#include "brunvik/sales/sales_issue.h"
#include "brunvik/settlement/pay_bill.h"
#include "brunvik/warehouse/other_stock_document.h"

namespace brunvik::bench {

namespace {

constexpr Integer row_count = 10;

std::string key(const char* format, unsigned number) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), format, number);
  return text.data();
}

// Spreads the seeds and rows over the goods.
unsigned scattered(unsigned seed, unsigned row) { return (seed * 97 + row) * 2'654'435'761U; }

void add_rows(Collection<StockRow>& rows, const std::string& bill, unsigned seed) {
  for (Integer number = 1; number <= row_count; ++number) {
    const unsigned goods = (scattered(seed, static_cast<unsigned>(number)) >> 8) % goods_count;
    StockRow& row = rows.add();
    row.BillId = bill;
    row.Rownum = number;
    row.Gid = key("G%04u", goods);
    row.Gbarcode = key("69%011u", goods);
    row.Gname = key("螺丝 M%u", goods);
    row.Class = "五金";
    row.Unit = number % 4 == 0 ? "箱" : "盒";
    row.Qty = static_cast<Single>(number) + (number % 3 == 0 ? 0.5F : 0.0F);
    row.Actualqty = row.Qty;
    row.price = Money::from_ten_thousandths(10'000 * (goods % 90) + 12'500);
    row.Amount = Money::from_double(row.price.to_double() * static_cast<double>(row.Qty));
    row.Receiver = row.Supplier = number % 2 == 0 ? "W1" : "W2";
    row.Remarks = "O'Neil 的货";
  }
}

template <class Bill>
void fill_common(Bill& bill, const ado::ConnectionReference& connection) {
  bill.ADOConn = connection;
  bill.Creator = "u1";
  bill.Createtime = "2024-03-05 09:30:00";
  bill.Auditor = "u4";
  bill.Audittime = "2024-03-05 17:00:00";
  bill.Remarks = "按合同";
}

void fill_own(clsOthersInBill& bill) { bill.RManager = "u2"; }

void fill_own(clsPurchaseInBill& bill) {
  bill.Vendor = "K0017";
  bill.RkrId = "u2";
  bill.Salesman = "u3";
  bill.Amount = bill.Closeamount = Money::parse("1234.5");
}

void fill_own(clsSalesOutBill& bill) {
  bill.ClientId = "K0417";
  bill.CkrId = "u2";
  bill.Salesman = "u3";
  bill.Amount = bill.Closeamount = Money::parse("1234.5");
  bill.Taxrate = 0.13F;
}

Long propose(Bill& bill) { return bill.GetNewId(bill.ID); }
Long propose(clsSalesOutBill& bill) { return bill.GetNewId(bill.ID, "XSC"); }

// Each moves its stock.
Long audit(clsOthersInBill& bill) { return bill.Audit(); }
Long audit(clsPurchaseInBill& bill) { return bill.Audit(true); }
Long audit(clsSalesOutBill& bill) { return bill.Audit(false); }
Long undo(clsOthersInBill& bill) { return bill.UndoAudit(); }
Long undo(clsPurchaseInBill& bill) { return bill.UndoAudit(true); }
Long undo(clsSalesOutBill& bill) { return bill.UndoAudit(false); }

// Both neighbours within a series, of a number from anywhere in the years of the large books.
Long find_neighbours(clsSalesOutBill& bill, unsigned seed) {
  const unsigned place = scattered(seed, 0) >> 8;
  std::array<char, 32> number{};
  std::snprintf(number.data(), number.size(), "XSC%02u%02u%02u00103", 17 + place % 7, 1 + place % 12, 1 + place % 28);
  std::string near;
  const Long previous = bill.GetNearId(number.data(), near, false, "XSC");
  return previous != 0 ? previous : bill.GetNearId(number.data(), near, true, "XSC");
}

template <class Bill>
Life stock_life(const ado::ConnectionReference& connection, unsigned seed, Numbering numbering,
                const char* number_format) {
  const auto bill = std::make_shared<Bill>();
  const auto add = [bill, seed] {
    add_rows(bill->colBillItems, bill->ID, seed);
    return 0;
  };
  Life life;
  life.begin = [=] {
    *bill = Bill();
    fill_common(*bill, connection);
    fill_own(*bill);
    if (numbering == Numbering::proposed) return;
    bill->ID = key(number_format, seed % 10'000);
    add();
  };
  if (numbering == Numbering::proposed) {
    life.steps.push_back({"GetNewId", [bill] { return propose(*bill); }});
    life.steps.push_back({"", add, false});
  }
  life.steps.push_back({"Save", [bill] { return bill->Save(); }});
  life.steps.push_back({"Audit", [bill] { return audit(*bill); }});
  life.steps.push_back({"LoadById", [bill] { return bill->LoadById(std::string(bill->ID)); }});
  life.steps.push_back({"UndoAudit", [bill] { return undo(*bill); }});
  if constexpr (std::is_same_v<Bill, clsSalesOutBill>) {
    if (numbering == Numbering::proposed) {
      life.steps.push_back({"GetNearId", [bill, seed] { return find_neighbours(*bill, seed); }});
    }
  }
  life.steps.push_back({"Delete", [bill] { return bill->Delete(); }});
  return life;
}

}  // namespace

Life other_receipt(const ado::ConnectionReference& connection, unsigned seed, Numbering numbering) {
  return stock_life<clsOthersInBill>(connection, seed, numbering, "QTR2403059%04u");
}

Life purchase_receipt(const ado::ConnectionReference& connection, unsigned seed, Numbering numbering) {
  return stock_life<clsPurchaseInBill>(connection, seed, numbering, "JHR2403059%04u");
}

Life sales_issue(const ado::ConnectionReference& connection, unsigned seed, Numbering numbering) {
  return stock_life<clsSalesOutBill>(connection, seed, numbering, "XSC2403059%04u");
}

Life payment(const ado::ConnectionReference& connection, unsigned seed, Numbering numbering) {
  const auto voucher = std::make_shared<clsPayBill>();
  const auto add = [voucher, seed] {
    PaymentRow& money = voucher->colRPBItems.add();
    money.BID = voucher->ID;
    money.Rownum = 1;
    money.MeansOfPayment = 1;
    money.Amount = Money::parse("12.5");
    for (Integer number = 1; number <= row_count; ++number) {
      SettledRow& row = voucher->colRPBRPItems.add();
      row.BID = voucher->ID;
      row.Rownum = number;
      // Of each ten bills of a day the first two are receipts.
      row.Rpablebid = key("JHR240304%05u", (seed % 25 + static_cast<unsigned>(number)) * 10 + 1);
      row.Rpablebtype = static_cast<Byte>(bill_type::purchase_receipt);
      row.Amount = Money::parse("1.25");
    }
    return 0;
  };
  Life life;
  life.begin = [=] {
    *voucher = clsPayBill();
    fill_common(*voucher, connection);
    voucher->Payer = 7;
    voucher->Ccompany = "K0017";
    voucher->Paidamount = voucher->Amount = Money::parse("12.5");
    if (numbering == Numbering::proposed) return;
    voucher->ID = key("FKD2403059%04u", seed % 10'000);
    add();
  };
  if (numbering == Numbering::proposed) {
    life.steps.push_back({"GetNewId", [voucher] { return propose(*voucher); }});
    life.steps.push_back({"", add, false});
  }
  life.steps.push_back({"Save", [voucher] { return voucher->Save(); }});
  life.steps.push_back({"LoadById", [voucher] { return voucher->LoadById(std::string(voucher->ID)); }});
  life.steps.push_back({"Audite", [voucher] { return voucher->Audite(voucher->Auditor, voucher->Audittime); }});
  life.steps.push_back({"UndoAudite", [voucher] { return voucher->UndoAudite(); }});
  life.steps.push_back({"Delete", [voucher] { return voucher->Delete(); }});
  return life;
}

void run(const Step& step) {
  if (const Long result = step.run(); result != 0) {
    throw std::runtime_error(step.verb + " ended with " + std::to_string(result));
  }
}

}  // namespace brunvik::bench
