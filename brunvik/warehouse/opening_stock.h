// Opening stock (期初入库): the goods that a company holds when it starts. One object has two halves, built as twins:
// new goods are a bill of StockBill, repair goods one of RGStockBill. A bill is born audited and has no other status;
// each half lays the stock balances itself.
//
// A bill is saved in slices, by the goods' class and by a flag of the goods: a save replaces the rows and the balances
// of its slice and leaves the others alone. Its statements run on ADOConn. What fails is told in a notice; what ran
// before it stays.
#pragma once

#include <string>

#include "brunvik/billframe/catalogue.h"
#include "brunvik/billframe/stock_row.h"

namespace brunvik {

class clsInitInBill final : public PublicObject {
 public:
  // The connection of the saves and reads; the host sets it before any verb.
  ado::ConnectionReference ADOConn;
  bool CreateFlag = false;
  // The warehouse whose balances a save removes. A row's goods come into the row's own Receiver.
  std::string Receiver;
  std::string Nowpaybillid;
  Collection<StockRow> colBillItems;
  std::string ID, Manualid;
  std::string Vendor;
  // The stock keeper who received the goods.
  std::string RkrId;
  std::string Salesman;
  std::string Creator, Createtime;
  std::string Auditor, Audittime;
  Long Status = 0;
  // As the host sets them. The bill is closed where what was paid reaches what is to be settled.
  Money Paidamount, Closeamount, Amount;
  Money BillCost;
  // The state in which the goods come into the stock. A save removes the balances of this state.
  Integer Referflag = 0;
  std::string Referbillid, Summary, Remarks;

  Long Inoutflag() const { return kind().side; }

  // Saves the header with status 3; removes the rows of the slice and its balances in the object's warehouse and state,
  // whichever bill laid them; then inserts each row with a balance in the unit of the row. The slice is the goods of
  // the class sZLID (all classes where it is empty) whose flag is iZYCP: 1, or 2 for goods with 2 or without a flag;
  // any other iZYCP is all goods. iCPZT is not looked at. -1 with an empty ID. A header that fails ends the save in
  // front of the removal, a row ends it behind.
  Long Save(const std::string& sZLID, Integer iZYCP, Integer iCPZT) noexcept;
  Long RGSave(const std::string& sZLID, Integer iZYCP, Integer iCPZT) noexcept;

  // Proposes the next free number of today in the table of the half. Nothing reserves it.
  Long GetNewId(std::string& BID) noexcept;
  Long GetRGNewId(std::string& BID) noexcept;

  // ID becomes BID; header and rows are read. Without such a bill the header stays as it is and the rows are empty.
  Long LoadById(const std::string& BID) noexcept;
  Long LoadRGById(const std::string& BID) noexcept;

  const Kind& kind() const { return kind::clsInitInBill; }
  const Members& members() const override { return table(); }

 private:
  struct Words;
  struct Half;

  static const Members& table();
  static const Half& new_goods();
  static const Half& repair_goods();

  Long save(const Half& half, const std::string& goods_class, Integer slice) noexcept;
  void save_header(const Half& half) const;
  void remove_slice(const Half& half, const std::string& goods_filter) const;
  void add_row(const Half& half, const StockRow& row) const;
  Long propose_number(const Half& half, std::string& number) const noexcept;
  Long load(const Half& half, const std::string& number) noexcept;
  void read_header(const Half& half);

  ado::Recordset execute(std::string_view statement) const { return ado::execute(ADOConn, statement, ado::Road::bill); }

  // What the statements write beside the properties: the times as the books keep them, and whether the bill is settled.
  std::string created() const;
  std::string audited() const;
  bool closed() const { return Paidamount >= Closeamount; }
};

}  // namespace brunvik
