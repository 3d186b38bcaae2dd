#include "brunvik/billframe/order.h"

#include "brunvik/ado/or_zero.h"
#include "brunvik/foundation/SqlOPT_Function.h"
#include "brunvik/foundation/error_trap.h"

namespace brunvik {

OrderForm Order::order_form_of(const Kind& kind, const Members& members, const Members& row, const Members& link,
                               const OrderWords& words) {
  const std::string header(kind.tables[0]), rows(kind.tables[1]);
  const std::string partner(words.partner_column), person(words.person_column);
  return {
      words,
      form_reading_back(
          words.statements,
          Insert(members, {},
                 "insert into " + header + "(Id,ManualId," + partner + "," + person +
                     ",Creator,CreateTime,BillCost,SendClosedtag,ReferFlag,Referbillid,Summary,Remarks) values("),
          Update(members, {},
                 "update " + header + " set ManualId = ," + partner + " = ," + person +
                     " = ,BillCost = ,SendClosedtag = ,ReferFlag = ,Referbillid = ,Summary = ,Remarks =  where Id="),
          Insert(row, {},
                 "insert into " + rows +
                     "(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,UQty,qty,Actualqty,price,Amount," +
                     partner + ",remarks) values(")),
      Insert(link, {}, words.insert_link)};
}

void Order::find_last(std::string& last, std::string_view) {
  last = aggregated_id(execute(
      sql("select TOP 1 * from {raw} where id like '{raw}%' order by Id desc", kind().header_table(), kind().prefix)));
}

Long Order::SetSaleClose(const std::string& BillId) noexcept {
  return trap([&] {
    auto rows = execute(sql("select * from {raw} where BillId={}", kind().tables[1], BillId));
    for (; !rows.at_end(); rows.MoveNext()) {
      if (ado::money_or_zero(rows.value("Qty")) > ado::money_or_zero(rows.value("Actualqty"))) return;
    }
    execute(sql("update {raw} set SendClosedtag=1 where Id={}", kind().header_table(), BillId));
  });
}

Long Order::UndoSetSaleClose(const std::string& BillId) noexcept {
  return trap([&] { execute(sql("update {raw} set SendClosedtag=0 where Id={}", kind().header_table(), BillId)); });
}

Long Order::read_links(RowCollection& links, const std::string& order, const std::string& bill) noexcept {
  return trap([&] {
    links.clear();
    brunvik::read_rows<PublicObject>(links, execute(sql(order_form().words.select_links, order, bill)),
                                     order_form().insert_link.members_written(),
                                     [](PublicObject&, const ado::Recordset&) {});
  });
}

Long Order::remove_links(const std::string& bill) noexcept {
  return trap([&] { execute(sql(order_form().words.delete_links, bill)); });
}

Long Order::save_link(const OrderLink& link) noexcept {
  return trap([&] { execute(order_form().insert_link.text(link)); });
}

Long Order::change_quantity(Change change, const OrderLink& link) noexcept {
  return trap([&] {
    const double base_units = GoodsUnitConverter(link.Goodsid, link.unit).to_double() * static_cast<double>(link.Qty);
    execute(sql("update {raw} set ActualQty=ActualQty{raw}{} where BillId={} and RowNum={} and GID={}",
                kind().tables[1], change == Change::add ? "+" : "-", base_units, link.order(), link.OrderRownum,
                link.Goodsid));
  });
}

bool Order::is_in_use(const std::string& order) noexcept {
  bool in_use = true;
  trap([&] { in_use = !execute(sql(order_form().words.select_users, order)).at_end(); });
  return in_use;
}

}  // namespace brunvik
