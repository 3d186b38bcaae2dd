// The documents of every family as data: what the host puts into them, and the verbs of a day's work with them. They
// are worked by the names of their classes and members.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "brunvik/ado/value.h"

namespace brunvik::bench {

// In a value, $ID is the number of the document, $ROW the number of the row, and $GOODS a goods from all over the list.
struct Property {
  std::string_view name;
  std::string_view value;
};

struct Rows {
  std::string_view collection;
  std::vector<Property> properties;
};

struct Call {
  std::string_view step;
  std::string_view verb;
  std::vector<Value> arguments = {};
};

struct FamilyDocument {
  std::string_view name;
  std::string_view class_name;
  std::vector<Property> properties;
  // Ten of each.
  std::vector<Rows> rows;
  // What follows on GetNewId; the last brings the books back, where the document has a verb for it. A call without a
  // step isn't measured.
  std::vector<Call> calls;
  // The member of the number.
  std::string_view number = "ID";
  // A statement that brings the books back where no verb does.
  std::string_view undone_by = {};
};

struct Family {
  std::string_view name;
  std::vector<FamilyDocument> documents;
  // Whether its documents are measured against a replay of their statements, too.
  bool replayed = false;
};

std::span<const Family> families();

}  // namespace brunvik::bench
