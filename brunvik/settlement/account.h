// An account and a movement on it, row by row, for the forms that keep the two tables. Each verb runs one statement as
// its words stand, and tests nothing. A movement that is written so moves no balance: that is the work of
// CreateZHJYXX_LX (brunvik/settlement/ledger.h).
//
// Texts go in as they stand, so an apostrophe in one breaks the statement. A key is matched as a LIKE pattern is
// written: one that holds [ _ or % finds only what is stored in its escaped form.
#pragma once

#include <string>
#include <string_view>

#include "brunvik/ado/connection.h"
#include "brunvik/billframe/catalogue.h"
#include "brunvik/foundation/members.h"

namespace brunvik {

class LedgerRecord : public PublicObject {
 public:
  ado::ConnectionReference ADOConn;

  virtual const Kind& kind() const = 0;

 protected:
  void execute(std::string_view statement) const { ado::execute(ADOConn, statement, ado::Road::bill); }
};

// A cash or bank account. Its errors are also shown in a notice.
class ClsZHXX final : public LedgerRecord {
 public:
  // The number of the account, by which it is found, its bank, and its balance.
  std::string Zh, Khh;
  Single Ye = 0;

  // Both are refused by every database for a comma that stands too much, and so always give the error's number.
  Long Add() noexcept;
  Long UpDate() noexcept;

  // Removes the account; 0 also where there is none.
  Long Delete() noexcept;

  const Kind& kind() const override { return kind::ClsZHXX; }
  const Members& members() const override;
};

// A movement on an account. Its errors are its results alone.
class clsZHJYXX final : public LedgerRecord {
 public:
  std::string ID;
  // The account, the summary, and the day of the movement.
  std::string ZhID, Jyzy, Jysj;
  Single Jyje = 0;
  // The manner of the movement, and its direction: 1 into the account, -1 out of it.
  Integer Jyfs = 0, Jylx = 0;
  // The other account of a transfer, the row of the source document, the time of entry.
  std::string ZczhID, Dyid, Cjsj;
  // The operator, the person responsible, and the number of the bill that caused the movement.
  std::string Czy, Jbr, DYDJH;

  // Refused by every database for a quote that isn't closed.
  Long Add() noexcept;

  // Names two columns that the table doesn't have, and fails where it has only those of the journal.
  Long UpDate() noexcept;

  // Removes the movement, and leaves the balance; 0 also where there is none.
  Long Delete() noexcept;

  const Kind& kind() const override { return kind::clsZHJYXX; }
  const Members& members() const override;
};

}  // namespace brunvik
