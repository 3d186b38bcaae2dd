// Recordset: the rows that a statement selected, fetched whole, with a current record.
//
// A set is read from its first record to its end:
//
//   ado::Recordset set = connection->Execute("select Gid, Qty from StockBillItems");
//   const ado::Column gid = set.column("gid");
//   for (; !set.at_end(); set.MoveNext()) use(set.value(gid));
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "brunvik/ado/types.h"
#include "brunvik/ado/value.h"

namespace brunvik::ado {

class Connection;

// The place of a column in a set, found once and good for all of its records.
enum class Column : std::size_t {};

// The names of a set's columns, in their order. A driver makes them once for a statement, for all sets that it selects.
class ColumnNames {
 public:
  explicit ColumnNames(std::vector<std::string> names);

  const std::vector<std::string>& list() const noexcept { return names_; }

  // Without regard to the case of ASCII letters; the first of two equal names. The count of names where there is none.
  std::size_t find(std::string_view name) const noexcept;

 private:
  // A name's place in a table that is at least half empty, so that a name is found at the first or second look.
  struct Slot {
    std::uint32_t mark = 0;
    std::uint32_t place = 0;  // counted from one; 0 in an empty slot
  };

  std::size_t first_slot(std::uint32_t mark) const noexcept;

  std::vector<std::string> names_;
  std::vector<Slot> slots_;
};

class Recordset : public Object {
 public:
  // A closed set.
  Recordset() = default;

  // An open set: `cells` holds the records one after the other, each with a value for every name.
  Recordset(std::vector<std::string> names, std::vector<Value> cells);
  Recordset(std::shared_ptr<const ColumnNames> names, std::vector<Value> cells);

  // 0 when the set is closed, 1 when it is open.
  Long State() const noexcept { return open_ ? 1 : 0; }
  void Close() noexcept;

  // The connection on which Open runs, unset in a new set.
  void set_active_connection(std::shared_ptr<Connection> connection);

  // Runs the statement on the active connection and becomes its result; a host's hook sees it on the session's road.
  // Error 3709 without an open connection.
  void Open(std::string_view source);

  // No record (EOF): behind the last one, or none at all. Error 3704 on a closed set.
  bool at_end() const {
    if (!open_) raise_closed();
    return record_ >= cells_.size();
  }
  void MoveNext();
  void MoveFirst();

  std::size_t record_count() const noexcept;
  const std::vector<std::string>& names() const noexcept;

  // One object for all sets of a statement, null in a closed set.
  const std::shared_ptr<const ColumnNames>& column_names() const noexcept { return names_; }

  // Names are compared without regard to the case of ASCII letters; the first of two equal names counts. Error 3265.
  Column column(std::string_view name) const;
  bool has(std::string_view name) const noexcept;

  // The values of the current record, in the order of the columns. Error 3021 where there is none.
  std::span<const Value> record() const {
    if (at_end()) raise_no_record();
    return {cells_.data() + record_, width_};
  }

  // The same for the owner of the set, who may take them out of it.
  std::span<Value> record() {
    if (at_end()) raise_no_record();
    return {cells_.data() + record_, width_};
  }

  // The value in the current record. Error 3021 where there is none.
  const Value& value(Column column) const {
    if (at_end()) raise_no_record();
    return cells_[record_ + static_cast<std::size_t>(column)];
  }
  const Value& value(std::string_view name) const { return value(column(name)); }

 private:
  [[noreturn]] static void raise_closed();
  [[noreturn]] static void raise_no_record();

  std::shared_ptr<Connection> connection_;
  bool open_ = false;
  std::size_t width_ = 0;
  std::shared_ptr<const ColumnNames> names_;
  std::vector<Value> cells_;
  std::size_t record_ = 0;  // the place of the current record's first value
};

}  // namespace brunvik::ado
