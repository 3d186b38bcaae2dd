#include "brunvik/automation/automation.h"

#include <algorithm>
#include <array>

#include "brunvik/ado/errors.h"
#include "brunvik/ado/names.h"
#include "brunvik/automation/family.h"
#include "brunvik/foundation/goods_record.h"
#include "brunvik/foundation/last_failure.h"
#include "brunvik/stock/InitBrunvikVariable.h"

namespace brunvik::automation {

namespace {

constexpr std::array families{purchasing, sales, warehouse, settlement, repair, service, borrowing, logistics};

template <class Named>
const Named& named(std::span<const Named> all, std::string_view name, Long error) {
  for (const Named& entry : all) {
    if (ado::same_name(entry.name, name)) return entry;
  }
  ado::raise(error);
}

// Where the catalogue has the class; what is no document comes first.
std::ptrdiff_t place_in_catalogue(const Class& listed) {
  if (!listed.kind) return -1;
  const auto kinds = kind::all();
  return std::find(kinds.begin(), kinds.end(), listed.kind) - kinds.begin();
}

}  // namespace

std::span<const Class> classes() {
  static const std::vector<Class> classes = [] {
    std::vector<Class> all{{"InitBrunvikVariable", nullptr, make<InitBrunvikVariable>}};
    for (const auto family : families) {
      for (const Class& each : family().classes) all.push_back(each);
    }
    std::sort(all.begin(), all.end(),
              [](const Class& a, const Class& b) { return place_in_catalogue(a) < place_in_catalogue(b); });
    return all;
  }();
  return classes;
}

const Class& class_named(std::string_view name) { return named(classes(), name, ado::error::no_such_class); }

std::shared_ptr<PublicObject> create(std::string_view class_name) { return class_named(class_name).create(); }

Value get(const PublicObject& object, std::string_view member) { return object.members().named(member).get(object); }

void put(PublicObject& object, std::string_view member, const Value& value) {
  object.members().named(member).put(object, value);
}

RowCollection& rows(PublicObject& object, std::string_view member) {
  return object.members().named(member).rows(object);
}

Value call(PublicObject& object, std::string_view member, std::vector<Value>& arguments) {
  return object.members().named(member).call(object, arguments);
}

const Procedure& procedure_named(std::string_view name) {
  return named(procedures(), name, ado::error::no_such_member);
}

Value call_procedure(std::string_view name, std::vector<Value>& arguments) {
  const Procedure& procedure = procedure_named(name);
  const detail::WithinCall this_call;
  complete_arguments(procedure.parameters, arguments);
  return procedure.call(arguments);
}

std::span<const RecordClass> record_classes() {
  static const std::vector<RecordClass> records = [] {
    std::vector<RecordClass> all{record<GoodsRecord>("GoodsRecord")};
    for (const auto family : families) {
      for (const RecordClass& each : family().records) all.push_back(each);
    }
    return all;
  }();
  return records;
}

std::shared_ptr<RowCollection> create_rows(std::string_view record_class) {
  return named(record_classes(), record_class, ado::error::no_such_class).create_rows();
}

}  // namespace brunvik::automation
