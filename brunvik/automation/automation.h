// Every public class by its name, every member by its name, every module procedure by its name. Names are compared
// without regard to case. For hosts that know the names at run time only:
//
//   auto bill = automation::create("clsOthersInBill");
//   automation::put(*bill, "ID", "QTR24030500001");
//   std::vector<Value> arguments;
//   Value result = automation::call(*bill, "Save", arguments);
//
// Errors are thrown as ado::RuntimeError: 429 no such class, 438 no such member (also a put to a read-only property),
// 13 a value of the wrong type, 450 a wrong count of arguments. What a verb itself meets is its result, as ever.
#pragma once

#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "brunvik/billframe/catalogue.h"
#include "brunvik/foundation/late_binding.h"
#include "brunvik/foundation/members.h"

namespace brunvik::automation {

struct Class {
  std::string_view name;
  // What the class is in the catalogue; nullptr for InitBrunvikVariable, which is no document.
  const Kind* kind;
  std::shared_ptr<PublicObject> (*create)();
};

// The public classes, in the order of the catalogue.
std::span<const Class> classes();
const Class& class_named(std::string_view name);

std::shared_ptr<PublicObject> create(std::string_view class_name);

Value get(const PublicObject& object, std::string_view member);
void put(PublicObject& object, std::string_view member, const Value& value);

// The collection of rows of this name; it stays the object's.
RowCollection& rows(PublicObject& object, std::string_view member);

// Arguments come back as the verb left them: by-reference ones changed, those that were left out added.
Value call(PublicObject& object, std::string_view member, std::vector<Value>& arguments);

std::span<const Procedure> procedures();
const Procedure& procedure_named(std::string_view name);
Value call_procedure(std::string_view name, std::vector<Value>& arguments);

struct RecordClass {
  std::string_view name;
  std::shared_ptr<RowCollection> (*create_rows)();
};

// The classes of row records: StockRow and its like, and GoodsRecord.
std::span<const RecordClass> record_classes();

// An empty collection of rows of a record class.
std::shared_ptr<RowCollection> create_rows(std::string_view record_class);

}  // namespace brunvik::automation
