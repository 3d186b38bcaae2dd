// The statements that lay the tables on an engine, and those that lay what a database lacks of them.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace brunvik::schema {

struct Table;

enum class Engine { sqlite, mariadb, sqlserver, access };

struct NamedEngine {
  std::string_view name;
  Engine engine;
};

// All engines, by the names that a host calls them by.
std::span<const NamedEngine> engines();

// One statement an element, without a closing semicolon, in an order in which an empty database can run them.
std::vector<std::string> statements(Engine engine);

// The same for these tables.
std::vector<std::string> statements(Engine engine, std::span<const Table> tables);

// A table as a database has it. Names are compared without regard to case. Of MariaDB the columns that `select *`
// doesn't show are named too, and a primary key by the name of its index, PRIMARY.
struct LaidTable {
  std::string name;
  std::vector<std::string> columns;
  std::vector<std::string> indexes;
  std::vector<std::string> key = {};  // the columns of MariaDB's primary key, in its order
};

// What these tables lack, in an order in which it can be run: tables, columns, indexes. Nothing is ever taken away or
// changed: a column of another type stays as it is, and so does whatever isn't described here. Rows that are there get
// a lacking column's initial value, or null. Throws a std::runtime_error where a table lacks its key, which no engine
// can give to rows that are there.
std::vector<std::string> lacking_statements(Engine engine, std::span<const LaidTable> laid);

}  // namespace brunvik::schema
