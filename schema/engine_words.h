// What differs from engine to engine in the statements that lay the tables. An engine a file.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "schema/ddl.h"
#include "schema/tables.h"

namespace brunvik::schema {

// How an engine declares a column of a type.
struct Declaration {
  std::string_view words;
  std::string_view check = {};  // what a value must fulfil, {} being the column; empty: the engine sees to it
};

// A column that the engine needs and the books don't know: neither `select *` nor an insert without a list of columns
// meets it.
struct OwnColumn {
  std::string name;
  std::string definition;
  std::string needless_with = {};  // the index beside which a table doesn't want the column; empty: none
  std::string added = {};          // how a table gets it that is there; empty: by the definition
};

struct Index {
  std::string columns;         // names or expressions, separated by ", "
  std::string condition = {};  // of the rows that stand in it; empty: all
};

// Of an engine that needs none.
std::vector<OwnColumn> no_own_columns(const Table& table);

// Of an engine that keeps no rows in an order of their own.
std::string no_order(const Table& table);

// An index as it is described.
Index described_index(std::string_view text);

// The described indexes over all rows. That of the numbers which texts stand for is left out: it needs an expression or
// a column of its own.
std::vector<Index> plain_indexes(const Table& table);

// What an engine's file doesn't say is as it is here.
struct EngineWords {
  std::string_view opening_quote = {};
  std::string_view closing_quote = {};
  Declaration (*declaration)(Type type);
  std::string_view key = " NOT NULL PRIMARY KEY";  // behind the type of the key column
  std::string_view no_key = {};                    // behind that of any other
  std::string_view table_end = {};
  std::string_view add = "ADD COLUMN ";  // in front of a column that a table lacks
  // Behind the initial value of such a column, so that the rows that are there get it too.
  std::string_view initial_for_rows = {};
  // Whether they get it by an update of its own.
  bool updates_rows = false;
  std::vector<OwnColumn> (*own_columns)(const Table& table) = no_own_columns;
  // The columns of the primary key in whose order a table is laid, separated by ", "; empty: in that of its key, or
  // none.
  std::string (*order)(const Table& table) = no_order;
  std::vector<Index> (*indexes)(const Table& table) = plain_indexes;
};

const EngineWords& words_of(Engine engine);

const EngineWords& sqlite_words();
const EngineWords& mariadb_words();
const EngineWords& sqlserver_words();
const EngineWords& access_words();

}  // namespace brunvik::schema
