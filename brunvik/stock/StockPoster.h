// StockPoster moves the quantities in Inventory. A session owns one, made at its start.
//
// What is posted is the quantity in the goods' own unit: the row's quantity times the factor of the row's unit, divided
// by the factor of the unit that the goods record names. Nothing is refused for lack of stock: a balance may go below
// zero.
//
// A post finds the balance of warehouse, goods, models and state, and moves it, or makes it where there is none. An
// undo takes the quantity back from the balances that are there; it makes none and deletes none.
//
// An operation that fails throws the error that stopped it, a Stop where a procedure has told the user already. It
// shows no notice of its own, and what it moved before stays moved.
#pragma once

#include <string>
#include <string_view>

#include "brunvik/ado/connection.h"
#include "brunvik/billframe/row_reader.h"
#include "brunvik/stock/stock_movement.h"

namespace brunvik {

class StockPoster {
 public:
  std::string DATAType;
  ado::ConnectionReference ADOConn;

  // Moves the goods of one row.
  template <class Row>
  void Post(const Operation<Row>& operation, const Row& row) const {
    for_each_movement(operation, [&](const Movement<Row>& movement) { post(moved(movement, row)); });
  }

  // Takes back the goods of one row.
  template <class Row>
  void Undo(const Operation<Row>& operation, const Row& row) const {
    for_each_movement(operation, [&](const Movement<Row>& movement) { undo(moved(movement, row)); });
  }

  // The same for the rows that the bill has stored, in the order in which the database gives them; a bill that isn't
  // there moves nothing.
  template <class Row>
  void Post(const Operation<Row>& operation, std::string_view bill_id) const {
    for (const Row& row : stored_rows(operation, bill_id)) Post(operation, row);
  }
  template <class Row>
  void Undo(const Operation<Row>& operation, std::string_view bill_id) const {
    for (const Row& row : stored_rows(operation, bill_id)) Undo(operation, row);
  }

 private:
  // The goods of one row on their way.
  struct MovedGoods {
    Direction direction;
    std::string_view warehouse;
    std::string_view goods, goods_class, model1, model2, unit;
    Single quantity;
    Long state;
  };

  template <class Row>
  static MovedGoods moved(const Movement<Row>& movement, const Row& row) {
    using Fields = GoodsFields<Row>;
    const auto* text = std::get_if<std::string_view>(&movement.warehouse);
    const auto* state = std::get_if<Long>(&movement.state);
    return {movement.direction,
            text ? *text : std::string_view(row.*std::get<std::string Row::*>(movement.warehouse)),
            row.*Fields::goods,
            row.*Fields::goods_class,
            row.*Fields::model1,
            row.*Fields::model2,
            row.*Fields::unit,
            row.*movement.quantity,
            state ? *state : row.*std::get<Long Row::*>(movement.state)};
  }

  template <class Row, class Action>
  static void for_each_movement(const Operation<Row>& operation, Action&& action) {
    action(operation.first);
    if (operation.second) action(*operation.second);
  }

  template <class Row>
  Collection<Row> stored_rows(const Operation<Row>& operation, std::string_view bill_id) const {
    using Fields = GoodsFields<Row>;
    const Row row;
    RowMembers read;
    const auto take = [&](const auto& field) { read.push_back(&row.members().kept_at(row, &field)); };
    for (const auto field : {Fields::goods, Fields::goods_class, Fields::model1, Fields::model2, Fields::unit}) {
      take(row.*field);
    }
    for_each_movement(operation, [&](const Movement<Row>& movement) {
      take(row.*movement.quantity);
      if (const auto* warehouse = std::get_if<std::string Row::*>(&movement.warehouse)) take(row.**warehouse);
      if (const auto* state = std::get_if<Long Row::*>(&movement.state)) take(row.**state);
    });
    Collection<Row> rows;
    read_rows<Row>(rows, ado::execute(ADOConn, sql(operation.stored_rows, bill_id)), read,
                   [](const Row&, const ado::Recordset&) {});
    return rows;
  }

  void post(const MovedGoods& goods) const;
  void undo(const MovedGoods& goods) const;
};

// The poster of the session; error 91 without a session.
const StockPoster& session_poster();

}  // namespace brunvik
