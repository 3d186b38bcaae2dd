// The account ledger: the company's cash and bank accounts (ZHXX) with their balances, and the journal of movements on
// them (ZHJYXX). The two procedures write both on the session's connection; a journal row knows its bill by its number
// alone.
//
// They trap their errors and show the Error Notice. Nothing ties their statements together: a journal row stays where
// the balance could not be moved.
#pragma once

#include <string>

#include "brunvik/ado/money.h"
#include "brunvik/ado/types.h"

namespace brunvik {

inline namespace SqlOPT_Function {

// Writes a journal row for a bill and moves the balance of the account by Amount times Direction, 1 into the account
// and -1 out of it. TypeCode picks the summary: a kind of bill, or with Voucher a payment (0) or a receipt (1); any
// other code leaves it empty. DateText is the day of the movement as parse_day reads it, empty for this moment.
// AccountId, Responsible and Payer go in as they stand, so an apostrophe in one breaks the statement.
//
// 0, or the number of the error: 13 for a text that is no date.
Long CreateZHJYXX_LX(const std::string& BillId, Money Amount, const std::string& AccountId,
                     const std::string& Responsible, Integer Direction, Long TypeCode, const std::string& Item,
                     bool Voucher, const std::string& DateText, const std::string& Payer);

// Takes what the bill's journal rows moved back out of the balances, and removes the rows. 0, or the number of the
// error that stopped it; then the rows stay.
Long DeleteZHJYXX(const std::string& BillId);

}  // namespace SqlOPT_Function

}  // namespace brunvik
