#include "tests/support/faults/frame.h"

#include <algorithm>

#include "brunvik/automation/automation.h"
#include "tests/support/faults/books.h"
#include "tests/support/faults/vocabulary.h"

namespace brunvik::test {

const Member* published(const PublicObject& object, const std::string& name) {
  const Members& members = object.members();
  const auto found =
      std::find_if(members.begin(), members.end(), [&](const Member& member) { return member.name() == name; });
  return found == members.end() ? nullptr : &*found;
}

namespace {

// Three bills; the second has two rows: boxes of screws, which are kept by the piece, and packs of nuts, whose balance
// is still to be made.
void lay_stock_bills(RehearsedDocument& document, const Stock& stock) {
  const auto second_of = [](const std::string& prefix) {
    return quoted(prefix.empty() ? "" : RehearsedDocument{.prefix = prefix}.bill());
  };
  const Long type = automation::class_named(document.class_name).kind->code.value();
  document.lay_bills(
      "insert into StockBill(Id,Type,InOutFlag,Status,CloseAmount,Amount,Nowpaybillid,NowAdvanceBillID) values(",
      "," + std::to_string(type) + ",1,2,100,100," + second_of(stock.voucher) + "," + second_of(stock.advance) + ")");
  document.lay_rows(
      "insert into StockBillItems(BillId,RowNum,GId,Class,Model1,Model2,unit,qty,ActualQty,price,Receiver,Supplier,"
      "GoodStutas) values(",
      {",1,'G1','五金','M6','','箱',2,2,120,'W1','W1',0)", ",2,'G2','五金','M8','','盒',3,3,5,'W1','W1',0)"});
}

}  // namespace

Frame frame_over(const std::string& header, const std::string& rows) {
  const Step row_added = ends("bill|insert into " + rows + "(");
  const Step header_read = ends("bill|select * from " + header + " where Id=");
  return {.header_sought = header_read,
          .header_read = header_read,
          .header_added = ends("bill|insert into " + header + "("),
          .header_updated = ends("bill|update " + header + " set "),
          .header_removed = ends("bill|delete from " + header + " where Id="),
          .rows_read = {ends("bill|select " + rows + ".*,warehouse.WName from " + rows + " ")},
          .rows_removed = {ends("bill|delete from " + rows + " where BillId=")},
          .rows_added = {row_added, row_added},
          .last = ends("bill|select Max(Id) as Id from " + header + " where type="),
          .next = ends("bill|select Min(Id) as Id from " + header + " where id > "),
          .previous = ends("bill|select Max(Id) as Id from " + header + " where Id < ")};
}

Frame stock_frame() {
  Frame frame = frame_over("StockBill", "StockBillItems");
  frame.header_updated = ends("bill|update stockbill set ManualId = ");
  frame.header_removed = header_removed();
  return frame;
}

Verbs saves(const std::string& verb, const Steps& looked_up, const Frame& frame, const std::string& unknown) {
  return {{.verb = verb,
           .steps = looked_up + Steps{frame.header_added} + frame.rows_added,
           .remark = "for_the_first_time",
           .number = unknown},
          {.verb = verb,
           .steps = looked_up + frame.rows_removed + Steps{frame.header_updated} + frame.rows_added,
           .remark = "again"}};
}

Verbs with_frame(const std::string& class_name, const std::string& prefix, const Frame& frame, Verbs own) {
  const RehearsedDocument document{.class_name = class_name, .prefix = prefix};
  const Steps read = Steps{frame.header_read} + frame.rows_read;
  const auto saved = [&](const char* verb) { return saves(verb, {frame.header_sought}, frame, document.number(9)); };
  const Verbs shared = saved("Save") + saved("SaveAsDraft") +
                       Verbs{
                           {.verb = "GetBill", .steps = read},
                           {.verb = "LoadById", .arguments = {document.bill()}, .steps = read},
                           {.verb = "Delete", .steps = frame.rows_removed + Steps{frame.header_removed}},
                           {.verb = "LoadLast", .steps = Steps{frame.last} + read},
                           {.verb = "GetLastId", .arguments = {""}, .steps = {frame.last}},
                           {.verb = "LoadNext", .steps = Steps{frame.next} + read},
                           {.verb = "LoadPreviou", .steps = Steps{frame.previous} + read},
                           {.verb = "GetNewId", .arguments = {""}, .steps = {next_number()}},
                           {.verb = "GetNextId", .arguments = {document.number(1), ""}, .steps = {frame.next}},
                           {.verb = "GetPreviousId", .arguments = {document.number(2), ""}, .steps = {frame.previous}},
                           {.verb = "GetNearId",
                            .arguments = {document.number(1), "", true},
                            .steps = {frame.next},
                            .remark = "forward"},
                           {.verb = "GetNearId",
                            .arguments = {document.number(2), "", false},
                            .steps = {frame.previous},
                            .remark = "backward"},
                       };
  const auto object = automation::create(class_name);
  Verbs verbs = std::move(own);
  const std::size_t own_count = verbs.size();
  for (Verb verb : shared) {
    const Member* const member = published(*object, verb.verb);
    const auto own_end = verbs.begin() + static_cast<std::ptrdiff_t>(own_count);
    if (!member || std::any_of(verbs.begin(), own_end, [&](const Verb& told) { return told.verb == verb.verb; })) {
      continue;
    }
    if (!member->parameters().empty() && member->parameters().back().name == "sIDQZ") {
      verb.arguments.emplace_back(prefix);
    }
    verbs.push_back(std::move(verb));
  }
  return verbs;
}

RehearsedDocument stock_document(const std::string& class_name, Verbs own, const Stock& stock) {
  RehearsedDocument document{.class_name = class_name, .prefix = stock.prefix};
  if (document.prefix.empty()) document.prefix = automation::class_named(class_name).kind->prefix;
  lay_stock_bills(document, stock);
  document.verbs = with_frame(class_name, document.prefix, stock.frame, std::move(own));
  return document;
}

}  // namespace brunvik::test
