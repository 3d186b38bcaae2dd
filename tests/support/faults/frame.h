// The verbs of the frame as every document has them: saving, reading, deleting, walking. A document tells only what it
// does in another way and what is its own.
#pragma once

#include <string>
#include <vector>

#include "brunvik/foundation/members.h"
#include "tests/support/faults/document.h"

namespace brunvik::test {

// The member of this name, or nullptr.
const Member* published(const PublicObject& object, const std::string& name);

// The statements that the frame's verbs are made of.
struct Frame {
  // What a save asks for, and what is read.
  Step header_sought, header_read;
  Step header_added, header_updated, header_removed;
  // Where a document reads several row sets, a step for each.
  Steps rows_read;
  Steps rows_removed;
  // Two rows of each set.
  Steps rows_added;
  // The highest number, and the neighbours of one.
  Step last, next, previous;
};

// Over a header table and a table of rows, as most documents word it.
Frame frame_over(const std::string& header, const std::string& rows);

// Over StockBill and StockBillItems.
Frame stock_frame();

// The save of a bill whose number is unknown, and of the one that is stored. What looks the bill up stands in front.
Verbs saves(const std::string& verb, const Steps& looked_up, const Frame& frame, const std::string& unknown);

// The frame's verbs that the class publishes, without those that are in `own`; `own` comes first. A verb that takes a
// series of numbers is given the prefix.
Verbs with_frame(const std::string& class_name, const std::string& prefix, const Frame& frame, Verbs own);

// What a document in StockBill has of its own beside its verbs.
struct Stock {
  // Where the catalogue has none.
  std::string prefix = {};
  // The prefix of the voucher and of the advance at its side; empty for none.
  std::string voucher = {}, advance = {};
  Frame frame = stock_frame();
};

// A document in StockBill: its three bills, its own verbs, and the frame's.
RehearsedDocument stock_document(const std::string& class_name, Verbs own, const Stock& stock = {});

}  // namespace brunvik::test
