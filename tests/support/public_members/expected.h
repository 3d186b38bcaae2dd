// The public members of every class and of every row record, as hosts know them, written out by hand. Each stands in
// its family's file beside this one and is collected when the program starts.
//
// A line names a kind and a type, then the members in their order. Arguments: & by reference, ? optional, = default. A
// property that starts with something says what: Status=3.
#pragma once

#include <map>
#include <string>

namespace brunvik::test {

// Collects the members of a class.
struct ExpectedClass {
  ExpectedClass(const std::string& class_name, const std::string& members);
};

// Collects the fields of a record that rows are made of.
struct ExpectedRecord {
  ExpectedRecord(const std::string& record_class, const std::string& fields);
};

// The members by the name of the class, and the fields by that of the record.
std::map<std::string, std::string>& expected_classes();
std::map<std::string, std::string>& expected_records();

// What nearly every document has.
inline std::string walking_verbs() {
  return R"(
verb Long: LoadLast() GetLastId(&LastId:String) LoadNext() LoadPreviou()
)";
}
inline std::string near_verb() {
  return R"(
verb Long: GetNearId(CurBillID:String,&NearBillID:String,?NextPreviousId:Boolean=False)
)";
}

}  // namespace brunvik::test
