// A class with a member of every type, and its row, for the tests of what is done with member tables.
#pragma once

#include <string>

#include "brunvik/foundation/late_binding.h"

namespace brunvik::test {

class SampleRow final : public PublicObject {
 public:
  std::string Gid;
  Single Qty = 0;

  const Members& members() const override {
    static const Members table{property<&SampleRow::Gid>("Gid", "GId"), property<&SampleRow::Qty>("Qty", "qty")};
    return table;
  }
};

class Sample final : public PublicObject {
 public:
  ado::ConnectionReference ADOConn;
  Collection<SampleRow> colItems;
  std::string ID;
  Byte Kind = 0;
  Integer Rownum = 0;
  Long Status = 0;
  Single Rate = 0;
  Double Exact = 0;
  Money Amount;
  bool Flag = false;
  Value Anything;
  bool Read = false;

  bool Closed() const { return Amount.is_zero(); }

  Long Save() { return Status; }
  Long GetNewId(std::string& BID) noexcept {
    BID = "new " + BID;
    return 0;
  }
  Money Add(Money& first, Single second, bool negative) {
    const Money sum = first + Money::from_double(negative ? -second : second);
    first = Money();
    return sum;
  }
  Value Echo(const Value& value) { return value; }
  void Forget() { ID.clear(); }
  Long Count(const RowCollection& rows) { return static_cast<Long>(rows.Count()); }
  std::string Name(SampleRow& row) {
    row.Qty = 9;
    return row.Gid;
  }
  Long Refuse(Long number) { ado::raise(number); }

  const Members& members() const override { return table(); }

  static const Members& table() {
    static const Members table{
        connection<&Sample::ADOConn>("ADOConn"),
        collection<&Sample::colItems>("colItems"),
        property<&Sample::ID>("ID", "Id"),
        property<&Sample::Kind>("Kind", "Kind"),
        property<&Sample::Rownum>("Rownum", "RowNum"),
        property<&Sample::Status>("Status", "Status").required(),
        property<&Sample::Rate>("Rate", "TaxRate"),
        property<&Sample::Exact>("Exact"),
        property<&Sample::Amount>("Amount", "Amount"),
        property<&Sample::Flag>("Flag", "CreateFlag"),
        property<&Sample::Anything>("Anything", "Anything"),
        property<&Sample::Read>("Read").read_from("ClosedTag"),
        only_if(false, property<&Sample::ID>("Hidden", "Hidden")),
        computed<&Sample::Closed>("Closed", "ClosedTag"),
        verb<&Sample::Save>("Save"),
        verb<&Sample::GetNewId>("GetNewId", out("BID")),
        verb<&Sample::Add>("Add", in_out("First"), optional(in("Second"), Single{2}), optional(in("Negative"), false)),
        verb<&Sample::Echo>("Echo", in("Value")),
        verb<&Sample::Forget>("Forget"),
        verb<&Sample::Count>("Count", in("Rows")),
        verb<&Sample::Name>("Name", in_out("Row")),
        verb<&Sample::Refuse>("Refuse", in("Number")),
    };
    return table;
  }
};

}  // namespace brunvik::test
