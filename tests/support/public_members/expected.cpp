#include "tests/support/public_members/expected.h"

namespace brunvik::test {

std::map<std::string, std::string>& expected_classes() {
  static std::map<std::string, std::string> classes;
  return classes;
}

std::map<std::string, std::string>& expected_records() {
  static std::map<std::string, std::string> records;
  return records;
}

ExpectedClass::ExpectedClass(const std::string& class_name, const std::string& members) {
  expected_classes().emplace(class_name, members);
}

ExpectedRecord::ExpectedRecord(const std::string& record_class, const std::string& fields) {
  expected_records().emplace(record_class, fields);
}

}  // namespace brunvik::test
