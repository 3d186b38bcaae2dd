// The public classes and the row records of each family, in a file of its own for each:
// brunvik/automation/family_*.cpp.
#pragma once

#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "brunvik/automation/automation.h"

namespace brunvik::automation {

struct Family {
  std::vector<Class> classes;
  std::vector<RecordClass> records;
};

Family borrowing();
Family logistics();
Family purchasing();
Family repair();
Family sales();
Family service();
Family settlement();
Family warehouse();

template <class Made>
std::shared_ptr<PublicObject> make() {
  return std::make_shared<Made>();
}

template <class Document>
Class document() {
  const Kind& kind = Document().kind();
  return {kind.class_name, &kind, make<Document>};
}

template <class Row>
RecordClass record(std::string_view name) {
  return {name, []() -> std::shared_ptr<RowCollection> { return std::make_shared<Collection<Row>>(); }};
}

}  // namespace brunvik::automation
