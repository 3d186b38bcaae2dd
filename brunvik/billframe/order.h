// The orders of both sides: what was ordered, and how much of it has come or gone. An order has no status and no audit,
// and moves neither stock nor money.
//
// The host drives the filling. For each piece of a receipt or an issue that was made from an order it adds the quantity
// to the order's row, sees whether the order is full, and saves the links between the two.
#pragma once

#include <string>
#include <string_view>

#include "brunvik/billframe/document.h"
#include "brunvik/billframe/order_row.h"

namespace brunvik {

// The words of one side. What the two say alike stands in the family, around the names of the tables and columns.
struct OrderWords {
  std::string_view partner_column, person_column;
  DocumentStatements statements;
  std::string_view insert_link;
  // By the order and the bill that fills it, in the order of that bill's rows.
  StatementText<2> select_links;
  // By the bill that fills.
  StatementText<1> delete_links;
  // The bills that name the order.
  StatementText<1> select_users;
};

struct OrderForm {
  OrderWords words;
  DocumentForm document;
  Insert insert_link;
};

class Order : public Document {
 public:
  // The order's total, as the host sets it.
  Money BillCost;
  // All has come or gone. SetSaleClose and UndoSetSaleClose change it in the table; a save writes what stands here.
  bool SendClosedtag = false;
  Long Referflag = 0;
  std::string Referbillid;

  using Bill::GetNearId;

  // The verb of the frame, its result in a dynamically typed value.
  Value Save() noexcept { return Bill::Save(); }

  // Closes the order where no row has more ordered than has come or gone; an order without rows is closed. 0 also where
  // the order stays open. What came is counted in base units and compared as it stands.
  Long SetSaleClose(const std::string& BillId) noexcept;

  // Opens the order again, whatever its rows say.
  Long UndoSetSaleClose(const std::string& BillId) noexcept;

 protected:
  virtual const OrderForm& order_form() const = 0;
  const DocumentForm& form() const override { return order_form().document; }

  static OrderForm order_form_of(const Kind& kind, const Members& members, const Members& row, const Members& link,
                                 const OrderWords& words);

  // Fills the links by what is stored between an order and a bill. The collection is emptied first, so that it holds
  // nothing where that can't be read.
  Long read_links(RowCollection& links, const std::string& order, const std::string& bill) noexcept;

  // Removes the links of a bill to all orders.
  Long remove_links(const std::string& bill) noexcept;

  Long save_link(const OrderLink& link) noexcept;

  // Adds the link's quantity, in base units, to what has come or gone of its order row; or takes it off.
  enum class Change { add, reduce };
  Long change_quantity(Change change, const OrderLink& link) noexcept;

  // Whether a bill names the order. An order that can't be asked about counts as in use.
  bool is_in_use(const std::string& order) noexcept;

  void find_last(std::string& last, std::string_view series) override;
};

// An order with the rows and the links of its side.
template <class Row, class Link>
class OrderOf : public Order {
 public:
  Collection<Row> colBillItems;
  // The links that were asked for last.
  Collection<Link> colOrderOutItems;

  // By the quantity of a link, turned into base units.
  Long AddSaleOrderQty(const Link& objBillItems) noexcept { return change_quantity(Change::add, objBillItems); }
  Long ReduceSaleOrderQty(const Link& objBillItems) noexcept { return change_quantity(Change::reduce, objBillItems); }

 protected:
  RowCollection& rows() override { return colBillItems; }

  // Inserts link by link; the first that fails ends it, and its number is the result.
  Long save_links(const Collection<Link>& links) noexcept {
    for (const Link& link : links) {
      if (const Long result = save_link(link); result != 0) return result;
    }
    return 0;
  }
};

}  // namespace brunvik
