// Where the members of a class stand in a set, and how a record fills them.
//
// A connection makes the names of a statement's columns once for all sets that it selects, so the places of the columns
// are kept with the names that they were found in. A goods record has 28 columns and is read for each row that moves:
// to look for them by name each time was a third of all that the library did in a receipt's audit.
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <variant>
#include <vector>

#include "brunvik/ado/recordset.h"
#include "brunvik/foundation/members.h"

namespace brunvik {

class MemberColumns {
 public:
  // What a null in a column leaves in the property: nothing (the empty text, 0, false), or what it held, texts apart.
  enum class Null { is_nothing, leaves_numbers };

  // The properties of an object and the columns of a set, in the order in which they are filled.
  class Fields {
   public:
    // Fills the object from a record of the set, whose texts are taken out of it. Most columns hold just what their
    // property is; any other value is converted, with the errors of Member::read, and what stands behind it is as it
    // was then. Error 3265 at a member whose column the set doesn't have.
    void take(PublicObject& object, std::span<Value> record, Null null = Null::is_nothing) const;

   private:
    friend class MemberColumns;

    // A run of properties of one type, so that the type is asked for once.
    template <class Stored>
    struct Field {
      Stored PublicObject::*property;
      std::size_t column;
      const Member* member;
    };
    template <class Stored>
    using Run = std::vector<Field<Stored>>;
    struct NoColumn {};
    using AnyRun = std::variant<NoColumn, Run<std::string>, Run<Byte>, Run<Integer>, Run<Long>, Run<Single>,
                                Run<Double>, Run<Money>, Run<bool>, Run<Value>, Run<ado::ConnectionReference>>;
    std::vector<AnyRun> runs_;

    void add(const Member& member, std::size_t column, std::size_t column_count);
  };

  // Fills the object, of the table's class, from the set's current record. Error 3021 where there is none.
  static void take(const Members& table, PublicObject& object, ado::Recordset& set, Null null = Null::is_nothing);

  // These members' fields, in their order; error 3265 at the first whose column the set doesn't have.
  static std::shared_ptr<const Fields> fields_of(std::span<const Member* const> members, const ado::Recordset& set);

 private:
  std::shared_ptr<const ado::ColumnNames> names_;
  const Members* table_ = nullptr;
  Fields fields_;
};

}  // namespace brunvik
