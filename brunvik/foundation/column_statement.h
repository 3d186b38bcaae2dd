// Statements that name their columns: the value of a column is found by the column's name, so that a long insert can't
// get out of step with its values.
//
//   const Insert add(members, {argument("Status"), constant("Type", 6)},
//       "insert into StockBill(Id,Type,Status,[Auditor,AuditTime,]Remarks) values(");
//
// [a|b] stands as a in the form for status 3 and as b in every other; |b may be left out. The text is taken apart once;
// a name that is no column of the class is error 3265 there, and a source that is no property of it 438. Both tell the
// table and the name.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "brunvik/foundation/members.h"
#include "brunvik/foundation/statement_writer.h"

namespace brunvik {

// Where a column takes its value from, where that isn't the property that the member table names for it.
struct ColumnSource {
  enum class Kind { constant, constant_unless_audited, argument, property, worked_out, bill_number };
  using WorkOut = ado::Value (*)(const PublicObject&);

  std::string_view column;
  Kind kind;
  Long value = 0;
  std::string_view property = {};
  WorkOut work_out = nullptr;
};

constexpr ColumnSource constant(std::string_view column, Long value) {
  return {column, ColumnSource::Kind::constant, value};
}

// The status that the caller gives.
constexpr ColumnSource argument(std::string_view column) { return {column, ColumnSource::Kind::argument}; }

// Another property than the column's own.
constexpr ColumnSource from(std::string_view column, std::string_view property) {
  return {column, ColumnSource::Kind::property, 0, property};
}

// The constant but in the form for status 3, which has the column's own property.
constexpr ColumnSource constant_unless_audited(std::string_view column, Long value) {
  return {column, ColumnSource::Kind::constant_unless_audited, value};
}

// The number of the bill that writes the row, for rows that don't know it.
constexpr ColumnSource bill_number(std::string_view column) { return {column, ColumnSource::Kind::bill_number}; }

// What the document makes of the object whenever it is written.
constexpr ColumnSource worked_out(std::string_view column, ColumnSource::WorkOut work_out) {
  return {column, ColumnSource::Kind::worked_out, 0, {}, work_out};
}

class ColumnStatement {
 public:
  // The text for an object. `status` picks the form and is the value of a column with an argument; `number` is that of
  // the bill.
  Statement text(const PublicObject& object, Long status = 0, std::string_view number = {}) const;

  // The properties that keep the columns written, but for those with a source that is no property: what an object
  // reads back of what it writes. In the form for any other status than 3.
  const std::vector<const Member*>& members_written() const noexcept { return other_.members_written; }

 protected:
  struct Value {
    std::string text_before;
    std::string column;
  };
  struct Parts {
    std::vector<Value> values;
    std::string tail;
  };

  // `take_apart` splits the text of one form at its columns.
  ColumnStatement(const Members& members, const std::vector<ColumnSource>& sources, std::string_view text,
                  Parts (*take_apart)(std::string_view));

 private:
  void write_to(StatementWriter& statement, const PublicObject& object, Long status, std::string_view number) const;

  struct Constant {
    Long value;
  };
  struct Argument {};
  struct BillNumber {};
  // The properties of these types are nearly all that there are.
  using Source = std::variant<std::string PublicObject::*, Byte PublicObject::*, Integer PublicObject::*,
                              Long PublicObject::*, Single PublicObject::*, Money PublicObject::*, const Member*,
                              Constant, Argument, BillNumber, ColumnSource::WorkOut>;

  // Where the next value stands and what it is. All are gone through for each row, after a statement that leaves little
  // of them at hand, so they are small and lie together.
  struct Place {
    std::size_t text_size;  // of the text in front of the value
    Source source;
  };
  struct Form {
    std::string text;  // of all that stands between the values, one behind the other
    std::vector<Place> places;
    std::vector<const Member*> members_written;
  };

  static Form resolved(const Parts& parts, const Members& members, const std::vector<ColumnSource>& sources,
                       bool audited);
  static Source source_of(std::string_view column, const Members& members, const ColumnSource* own_source);
  static Source source_of(const Member& member);

  Form audited_;
  Form other_;
};

// "insert into T(A,B) values(": the values follow, separated by commas, and the closing bracket.
class Insert : public ColumnStatement {
 public:
  Insert(const Members& members, const std::vector<ColumnSource>& sources, std::string_view text);
};

// "update T set A = ,B =  where Id=": each value stands where its comma or the where is, the key at the end.
class Update : public ColumnStatement {
 public:
  Update(const Members& members, const std::vector<ColumnSource>& sources, std::string_view text);
};

}  // namespace brunvik
