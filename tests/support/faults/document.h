// The documents as they are rehearsed: what each verb does, statement by statement, on the fault books. Each document
// stands in its family's file beside this one and is collected when the program starts:
//
//   const Rehearsed adjustment([] {
//     return stock_document("clsTZBill", {{.verb = "Audit", .steps = {marked}}, {.verb = "UndoAudit", .steps =
//     {marked}}});
//   });
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "brunvik/foundation/public_object.h"
#include "tests/support/faults/step.h"

namespace brunvik::test {

struct Verb {
  std::string verb;
  std::vector<Value> arguments = {};
  Steps steps = {};
  // What tells this run from another of the same verb.
  std::string remark = {};
  // The number that the object has in the end; the bill that it has read else.
  std::string number = {};
  std::vector<std::string> before = {};
  // What the host does with the object that has read its bill, in front of the verb.
  void (*prepare)(PublicObject& object) = nullptr;
  // Whose verb it is; the collection fills it in.
  std::string class_name = {};
};

using Verbs = std::vector<Verb>;

struct RehearsedDocument {
  std::string class_name = {};
  // The beginning of its numbers.
  std::string prefix = {};
  // The statements that lay its three bills. The second has rows: two of each row set.
  std::vector<std::string> books = {};
  Verbs verbs = {};
  // Verbs with nothing to rehearse: they send nothing, or what every engine refuses.
  std::vector<std::string> unrehearsed = {};

  // The number of one of its bills, counted from 1; 9 is the number of none.
  std::string number(int place) const { return prefix + "2403050000" + std::to_string(place); }
  std::string bill() const { return number(2); }

  // Adds the statements that lay its bills: each begins with the insert, to which the number comes, and ends with the
  // values behind that. Those of the second bill may be others.
  void lay_bills(const std::string& insert, const std::string& values);
  void lay_bills(const std::string& insert, const std::string& values, const std::string& values_of_the_second);

  // Adds those that lay rows of the second bill, in the same way.
  void lay_rows(const std::string& insert, const std::vector<std::string>& rows);
};

// Collects a document.
class Rehearsed {
 public:
  explicit Rehearsed(RehearsedDocument (*document)());
};

// Every document that was collected, and the one of this class; std::logic_error where there is none.
const std::vector<RehearsedDocument>& rehearsed_documents();
const RehearsedDocument& rehearsed_document(const std::string& class_name);

// All their verbs.
const Verbs& rehearsed_verbs();

// For the name of a test and for its messages.
std::string name_of(const Verb& verb);
inline void PrintTo(const Verb& verb, std::ostream* stream) { *stream << name_of(verb); }

}  // namespace brunvik::test
