// What several documents do in the same words: posting, costs, averages, marks, numbers.
#pragma once

#include <string>
#include <vector>

#include "tests/support/faults/step.h"

namespace brunvik::test {

// The two rows of every bill in StockBill: the goods, its own unit, the unit of the row, and whether the warehouse has
// a balance of it.
struct PostedRow {
  std::string goods, own_unit, unit;
  bool has_balance;
};
const std::vector<PostedRow>& both_rows();

// --------------------------------------------------------------------------- the procedures on the session's road

// The factor of a unit; without one it is 1.
Step factor(const std::string& unit);

// The average of a row's goods moves. Where its first statement fails, an error's number takes the place of the cost.
Steps average(const std::string& procedure, const PostedRow& row);
Step average_read();

Step row_cost();
Step bill_cost();
Step next_number();

// A setting is read as text: one that can't be read is empty. And as a truth value: one that can't be read is none, and
// ends the verb.
Step setting(const std::string& key, std::vector<std::string> skips = {});
Step truth_setting(const std::string& key, const std::string& tag);

// The quantity of a row in the goods' own unit. Without the factor of that unit it can't be worked out: division by 0.
Steps base_quantity(const PostedRow& row);

// A row goes into or out of the stock.
Steps post(const PostedRow& row);

// A bill's stock is taken back row by row; and the same where nobody looks at what comes of it.
Steps undo_post(const std::vector<PostedRow>& rows = both_rows());
Steps undo_post_ignored();

// What fails ends these steps alone. The verb goes on; with `result` it has the number of the failure in the end.
Steps apart(const std::string& name, Steps steps, bool result);

// ----------------------------------------------------------------------------- StockBill, on the bill's own road

Step header_read();
Step rows_read();
Step rows_removed();
Step header_removed();

// The status is written, with the auditor.
Step marked();

}  // namespace brunvik::test
