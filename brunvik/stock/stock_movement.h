// A movement of stock is data: which way the goods go, at which warehouse, how many, in which state. An operation is a
// line of one or two movements, with the statement that reads back what a bill has stored:
//
//   inline constexpr Operation<StockRow> Transfer{stored_stock_rows, issued, received};
//
//   poster().Post(operation::Transfer, row);
//   poster().Undo(operation::Transfer, ID);
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "brunvik/billframe/stock_row.h"
#include "brunvik/foundation/Declare_EnumType.h"
#include "brunvik/foundation/sql_text.h"

namespace brunvik {

enum class Direction { in, out };

template <class Row>
struct Movement {
  Direction direction;
  // The row's own warehouse, or one for all rows; a text must outlive the movement.
  std::variant<std::string Row::*, std::string_view> warehouse;
  // In the unit of the row.
  Single Row::*quantity;
  // One state for all rows (stock_status), or the row's own.
  std::variant<Long, Long Row::*> state;
};

template <class Row>
struct Operation {
  // Reads the rows that a bill has stored, by its number.
  StatementText<1> stored_rows;
  // A post carries them out in this order, and so does an undo, each the other way round. Where the first fails the
  // second isn't tried.
  Movement<Row> first;
  std::optional<Movement<Row>> second = {};
};

// Where a class of rows names its goods.
template <class Row>
struct GoodsFields {
  static constexpr std::string Row::*goods = &Row::Gid;
  static constexpr std::string Row::*goods_class = &Row::Class;
  static constexpr std::string Row::*model1 = &Row::Model1;
  static constexpr std::string Row::*model2 = &Row::Model2;
  static constexpr std::string Row::*unit = &Row::Unit;
};

inline constexpr StatementText<1> stored_stock_rows{"select * from StockBillItems where BillId={}"};

// Goods come into the row's Receiver and leave its Supplier.
inline constexpr Movement<StockRow> received{Direction::in, &StockRow::Receiver, &StockRow::Qty, stock_status::sound};
inline constexpr Movement<StockRow> issued{Direction::out, &StockRow::Supplier, &StockRow::Qty, stock_status::sound};

// The operations of the documents of StockBill. Those of the other tables stand with their documents.
namespace operation {
inline constexpr Operation<StockRow> StockIn{stored_stock_rows, received};
inline constexpr Operation<StockRow> StockOut{stored_stock_rows, issued};
inline constexpr Operation<StockRow> Loss{stored_stock_rows, issued};
inline constexpr Operation<StockRow> Overflow{stored_stock_rows, received};
inline constexpr Operation<StockRow> SalesReturn{stored_stock_rows, received};
inline constexpr Operation<StockRow> Transfer{stored_stock_rows, issued, received};
}  // namespace operation

}  // namespace brunvik
