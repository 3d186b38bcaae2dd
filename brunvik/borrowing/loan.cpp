#include "brunvik/borrowing/loan.h"

#include "brunvik/ado/numbers.h"
#include "brunvik/billframe/dealt_with.h"
#include "brunvik/foundation/SqlOPT_Function.h"
#include "brunvik/foundation/error_trap.h"

namespace brunvik {

namespace {

const Insert& insert_link() {
  static const Insert insert(BorrowLink::table(), {},
                             "insert into GBorrowList(BorrowId,StcokId,BorrowType,StcokType,BorrowRowNum,StcokRowNum,"
                             "Goodsid,unit,GoodStutas,Qty) values(");
  return insert;
}

void complete_link(BorrowLink& link, const ado::Recordset& set) {
  point_to_first(set, {{"BorrowType", &link.BorrowType},
                       {"StcokType", &link.StcokType},
                       {"BorrowRowNum", &link.BorrowRowNum},
                       {"StcokRowNum", &link.StcokRowNum}});
}

}  // namespace

Long Loan::AddBorrowPurQty(const BorrowLink& objBillItems) noexcept {
  return change_quantity(Change::add, objBillItems);
}
Long Loan::ReduceBorrowPurQty(const BorrowLink& objBillItems) noexcept {
  return change_quantity(Change::reduce, objBillItems);
}

// The base units come back to a single, as the column is: 0.1 of a dozen is 1.2.
Long Loan::change_quantity(Change change, const BorrowLink& link) noexcept {
  return trap([&] {
    const Single base_units =
        ado::to_single(GoodsUnitConverter(link.Goodsid, link.unit).to_double() * static_cast<double>(link.Qty));
    execute(change == Change::add
                ? sql("update GBorrowItems set ActualQty=ActualQty+{} where BillId={} and RowNum={} and GoodStutas={} "
                      "and GId={}",
                      base_units, link.BorrowId, link.BorrowRowNum, link.GoodStutas, link.Goodsid)
                : sql("update GBorrowItems set ActualQty=ActualQty-{} where BillId={} and RowNum={} and GoodStutas={} "
                      "and GID={}",
                      base_units, link.BorrowId, link.BorrowRowNum, link.GoodStutas, link.Goodsid));
  });
}

Long Loan::DeteleBorrowPurList(const std::string& PurId) noexcept {
  return trap([&] { execute(sql("delete from GBorrowList where StcokId={}", PurId)); });
}

Long Loan::ExitReturnGoods(const std::string& BillId) noexcept {
  return trap([&] {
    if (!has_row_dealt_with(execute(sql("select * from GBorrowItems where BillId={}", BillId)), "Actualqty")) {
      throw Stop{1};
    }
  });
}

Long Loan::read_links(Collection<BorrowLink>& links, const std::string& loan, const std::string& bill) noexcept {
  return trap([&] {
    brunvik::read_rows<BorrowLink>(
        links,
        execute(sql("select * from GBorrowList where BorrowId={} and StcokId={} and BorrowType={} and StcokType={} "
                    "order by StcokRowNum",
                    loan, bill, kind().code.value(), taken_over_by())),
        insert_link().members_written(), complete_link);
  });
}

Long Loan::save_links(const Collection<BorrowLink>& links) noexcept {
  return trap([&] {
    for (const BorrowLink& link : links) execute(insert_link().text(link));
  });
}

Long Loan::close(const std::string& loan) noexcept {
  return trap([&] {
    if (has_row_left(execute(sql("select * from GBorrowItems where BillId={}", loan)), "UQty", "Actualqty")) {
      throw Stop{1};
    }
    execute(sql("update GBorrowBill set ClosedTag=1 where Id={}", loan));
  });
}

Long Loan::open(const std::string& loan) noexcept {
  return trap([&] { execute(sql("update GBorrowBill set ClosedTag=0 where Id={}", loan)); });
}

}  // namespace brunvik
