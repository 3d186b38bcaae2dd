// The tables of the books, described once. Every engine's DDL is made from this description.
//
// Names are those of the statements and are compared without regard to case. A column may be null unless it
// is the key. Rows of a bill have no key: a bill may hold two rows of one number.
#pragma once

#include <span>
#include <string_view>

namespace brunvik::schema {

// Texts are compared without regard to case and to trailing blanks. How long one may be that isn't a Memo, an engine
// says, where it wants to know.
enum class Type {
  Key,      // a text that is looked for or stands in an index: a number, an id, a class, a model, a unit
  Text,     // one line: a name, an address, a code of the host
  Memo,     // remarks of any length
  Date,     // the text in which the host gave the date
  Byte,     // 8 bits
  Integer,  // 16 bits
  Long,     // 32 bits
  Boolean,  // 1 and 0
  Single,   // a quantity or a rate
  Money,    // four places, exact
};

struct Column {
  std::string_view name;
  Type type;
  std::string_view initial = {};  // what a row holds that was entered without the column; empty: null
};

struct Table {
  std::string_view name;
  std::span<const Column> columns;
  std::string_view key = {};  // the key column; empty: none
  // The columns of one index each, separated by ", "; behind " where " the condition of the rows that are looked for in
  // it: an engine may leave out the others.
  std::span<const std::string_view> indexes = {};
  // The Key whose highest number is asked for, as the number that its text stands for; empty: none.
  std::string_view numbered = {};
  // One of the indexes, in whose order an engine may keep the rows themselves. Where it does, its columns hold no null:
  // a row that is entered without one of them gets an empty text or zero. Empty: none.
  std::string_view order = {};
};

// All tables, master data first. The description lives as long as the process.
std::span<const Table> tables();

}  // namespace brunvik::schema
