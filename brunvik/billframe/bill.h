// The frame that all documents share: the header fields that every bill has, and the verbs.
//
// The verbs are one piece of code over the workers of a family of documents. A document lists those that belong to it
// in its member table; one that differs in a verb's arguments declares its own, which hides the frame's.
//
// A verb gives 0 when it is done, also when there was nothing to do; -1 when a save finds ID empty; else the number of
// the error that stopped it. It runs its statements one by one: what ran before a failure stays, and the properties
// keep what they hold. No verb looks at the status that a bill has: the host keeps the order of verbs.
#pragma once

#include <string>
#include <string_view>

#include "brunvik/ado/connection.h"
#include "brunvik/billframe/catalogue.h"
#include "brunvik/foundation/members.h"

namespace brunvik {

// The result of a save that finds no number.
inline constexpr Long result_without_id = -1;

class Bill : public PublicObject {
 public:
  // The connection that the bill's own statements run on; the host sets it before any verb.
  ado::ConnectionReference ADOConn;

  std::string ID;
  std::string Manualid;
  std::string Creator, Createtime;
  std::string Auditor, Audittime;
  Long Status = 0;
  std::string Summary, Remarks;

  virtual const Kind& kind() const = 0;

  // Saves the header, then the rows: all rows that are stored go, and those of the object come.
  Long Save() noexcept;
  Long SaveAsDraft() noexcept;

  // Removes the rows, then the header, of ID; 0 also where there is no such bill.
  Long Delete() noexcept;

  // ID becomes BID, and the bill is read.
  Long LoadById(const std::string& BID) noexcept;

  // The highest number of this kind, empty where there is none; LoadLast reads that bill into the object.
  Long GetLastId(std::string& LastId) noexcept;
  Long LoadLast() noexcept;

  // Moves to the neighbour. At the end ID is empty, and all else still holds the bill that was read before.
  Long LoadNext() noexcept;
  Long LoadPreviou() noexcept;

  // Proposes the next free number of today. Nothing reserves it.
  Long GetNewId(std::string& BID) noexcept;

 protected:
  enum class Saving { bill, draft };

  // The number of the bill. A family that publishes it under another name than ID keeps it in a property of its own.
  virtual std::string& number() { return ID; }
  const std::string& number() const { return const_cast<Bill*>(this)->number(); }

  // Verbs that not every document publishes.

  // Reads the header and the rows of ID. Without such a bill the header stays as it is and the rows are empty.
  Long GetBill() noexcept;

  // The neighbour of a number of this kind in the order of the text, the next or else the previous; empty at the end.
  Long GetNearId(const std::string& CurBillID, std::string& NearBillID, bool NextPreviousId = false) noexcept;

  // The same in two verbs.
  Long GetPreviousId(const std::string& CurBillID, std::string& PreviousId) noexcept;
  Long GetNextId(const std::string& CurBillID, std::string& NextId) noexcept;

  // The same for the kinds that keep several series of numbers, each with a prefix that the host gives.
  Long last_of_series(std::string& LastId, std::string_view series) noexcept;
  Long load_last_of_series(std::string_view series) noexcept;
  Long neighbour_in_series(const std::string& CurBillID, std::string& NearBillID, bool next,
                           std::string_view series) noexcept;
  Long load_neighbour_in_series(bool next, std::string_view series) noexcept;
  Long propose_number(std::string& BID, std::string_view prefix) noexcept;

  // The workers of a family. Each throws on an error, and that ends the verb.
  virtual void save_header(Saving saving) = 0;
  virtual void save_rows() = 0;
  virtual void read_header() = 0;
  virtual void read_rows() = 0;
  virtual void remove_rows() = 0;
  virtual void remove_header() = 0;
  virtual void find_last(std::string& last, std::string_view series) = 0;
  virtual void find_near(const std::string& current, std::string& near, bool next, std::string_view series) = 0;

  // On the bill's own connection; error 91 where it is unset.
  ado::Recordset execute(std::string_view statement) const { return ado::execute(ADOConn, statement, ado::Road::bill); }

  // A voucher that was made on the spot with this bill, as it is stored.
  template <class Voucher>
  Voucher loaded_voucher(const std::string& number) const {
    Voucher voucher;
    voucher.ADOConn = ADOConn;
    voucher.LoadById(number);
    return voucher;
  }

  // Audits the voucher of this number, where there is one, as the bill's auditor, or takes its audit back. What comes
  // of it is not looked at: a voucher that fails tells the user itself, and the bill's audit goes on.
  template <class Voucher>
  void audit_voucher(const std::string& number) const {
    if (number.empty()) return;
    auto voucher = loaded_voucher<Voucher>(number);
    voucher.Status = status::audited;
    voucher.Auditor = Auditor;
    voucher.Audittime = Audittime;
    voucher.Audite(Auditor, Audittime);
  }

  template <class Voucher>
  void undo_voucher(const std::string& number) const {
    if (!number.empty()) loaded_voucher<Voucher>(number).UndoAudite();
  }

  // Fills the properties from the set's record, where there is one.
  void read_properties(ado::Recordset set);

  // The only value of an aggregate as text; null reads as the empty text.
  static std::string aggregated_id(const ado::Recordset& set);

 private:
  void save(Saving saving);
};

// The next free number of today in a table, by its column ID: the prefix, the day, the running number. One that can't
// be worked out shows its own notice and ends in 00000.
std::string proposed_number(std::string_view table, std::string_view prefix);

// Calls `action` with each row in its order. A bill holds 32,767 rows: more is error 6, and none is saved.
template <class Action>
void for_each_row(RowCollection& rows, Action&& action) {
  if (rows.Count() > 32'767) ado::raise(ado::error::overflow);
  for (std::size_t position = 1; position <= rows.Count(); ++position) action(rows.at(position));
}

// The same from the last row to the first.
template <class Action>
void for_each_row_backwards(RowCollection& rows, Action&& action) {
  if (rows.Count() > 32'767) ado::raise(ado::error::overflow);
  for (std::size_t position = rows.Count(); position >= 1; --position) action(rows.at(position));
}

}  // namespace brunvik
