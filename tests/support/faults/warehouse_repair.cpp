// Goods found broken and goods repaired in the warehouse, which write the balances themselves.
#include "tests/support/faults/books.h"
#include "tests/support/faults/frame.h"
#include "tests/support/faults/vocabulary.h"

namespace brunvik::test {

namespace {

struct WarehouseRepair {
  // The class without "cls", which its workers have in their names.
  std::string name;
  std::string audit_setting;
  // What moves either row.
  std::vector<Steps> added;
};

Step adds(const std::string& begins) { return ends_telling("AddInventory():", "bill|" + begins); }

const std::string sought = "select * from Inventory where ";
const std::string laid = "insert into Inventory(";
const std::string changed = "update Inventory set ";

Steps reduced() {
  Steps steps{ends_telling("ReduceInventory():", "bill|select * from StockBillItems where BillId=")};
  for (int change = 0; change < 4; ++change) {
    steps.push_back(ends_telling("ReduceInventory():", "bill|" + changed));
  }
  return steps;
}

Frame frame(const std::string& name) {
  Frame frame = stock_frame();
  const auto tell = [&](Step& step, const std::string& tag) { step = ends_telling(tag + "():", step.begins); };
  tell(frame.header_read, "Get" + name);
  tell(frame.header_added, "Add" + name);
  tell(frame.header_updated, "Update" + name);
  tell(frame.header_removed, "Delete" + name + "AndItems");
  tell(frame.rows_read.front(), "Get" + name + "Items");
  tell(frame.rows_removed.front(), "Delete" + name + "Items");
  for (Step& row : frame.rows_added) tell(row, "Add" + name + "Items");
  tell(frame.last, "GetLastId");
  tell(frame.next, "GetNearId");
  tell(frame.previous, "GetNearId");
  return frame;
}

RehearsedDocument warehouse_repair(const WarehouseRepair& own, const std::string& bill) {
  const Frame shared = frame(own.name);
  Verbs verbs;
  for (const bool draft : {false, true}) {
    const std::string verb = draft ? "SaveAsDraft" : "Save";
    const std::string tag = "Save" + own.name + (draft ? "ForSketch():" : "():");
    Steps looked_up{ends_telling(tag, shared.header_sought.begins)};
    if (!draft) looked_up.push_back(truth_setting(own.audit_setting, tag));
    Frame posting = shared;
    posting.rows_added.clear();
    for (std::size_t row = 0; row < own.added.size(); ++row) {
      const std::string name = "row " + std::to_string(row + 1);
      posting.rows_added = posting.rows_added + Steps{shared.rows_added[row], setting("启用仓库业务审核", {name})};
      if (draft) continue;
      for (const Step& step : own.added[row]) posting.rows_added.push_back(named(name, step));
    }
    verbs = verbs + saves(verb, looked_up, posting, bill.substr(0, bill.size() - 1) + "9");
  }
  verbs.push_back({.verb = "Delete",
                   .steps = Steps{truth_setting(own.audit_setting, "Delete" + own.name + "AndItems():")} + reduced() +
                            shared.rows_removed + Steps{shared.header_removed},
                   .before = {"update BasicConfig set keyvalue='1' where keyname=" + quoted(own.audit_setting)}});
  verbs.push_back(
      {.verb = "Audit",
       .steps = Steps{ends_telling("Audit():", marked().begins)} + shared.rows_read + own.added[0] + own.added[1]});
  verbs.push_back({.verb = "UndoAudit", .steps = Steps{ends_telling("UndoAudit():", marked().begins)} + reduced()});
  return stock_document("cls" + own.name, std::move(verbs), {.frame = shared});
}

const Rehearsed repair([] {
  return warehouse_repair({"WareHouseRepairBill",
                           "启用进销审核",
                           {{adds(sought), adds(changed), adds(changed)}, {adds(sought), adds(laid), adds(laid)}}},
                          "BXX24030500002");
});
const Rehearsed restore([] {
  const Steps both_laid{adds(sought), adds(laid), adds(sought), adds(laid)};
  return warehouse_repair({"WareHouseRestoreBill", "启用仓库业务审核", {both_laid, both_laid}}, "XFR24030500002");
});

}  // namespace

}  // namespace brunvik::test
