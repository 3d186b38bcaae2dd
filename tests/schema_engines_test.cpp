// The statements that lay the tables on the engines that stand on servers, and on Access. What they say is held here as
// text; the limits of the engines are computed over it.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "schema/ddl.h"
#include "schema/tables.h"

namespace {

using namespace brunvik::schema;

struct Quotes {
  std::string opening;
  std::string closing;
};

const std::map<Engine, Quotes> servers{
    {Engine::mariadb, {"`", "`"}}, {Engine::sqlserver, {"[", "]"}}, {Engine::access, {"[", "]"}}};

std::string quoted(Engine engine, std::string_view name) {
  const Quotes& quotes = servers.at(engine);
  return quotes.opening + std::string(name) + quotes.closing;
}

std::string words(Engine engine, Type type) {
  const std::string collated = " COLLATE Chinese_Simplified_Pinyin_100_CI_AS_KS_WS_SC";
  static const std::map<Type, std::map<Engine, std::string>> all{
      {Type::Key,
       {{Engine::mariadb, "VARCHAR(190)"},
        {Engine::sqlserver, "nvarchar(190)" + collated},
        {Engine::access, "TEXT(190)"}}},
      {Type::Text,
       {{Engine::mariadb, "VARCHAR(500)"},
        {Engine::sqlserver, "nvarchar(500)" + collated},
        {Engine::access, "TEXT(255)"}}},
      {Type::Memo,
       {{Engine::mariadb, "LONGTEXT"}, {Engine::sqlserver, "nvarchar(max)" + collated}, {Engine::access, "MEMO"}}},
      {Type::Date, {{Engine::mariadb, "VARCHAR(100)"}, {Engine::sqlserver, "datetime"}, {Engine::access, "DATETIME"}}},
      {Type::Byte, {{Engine::mariadb, "TINYINT UNSIGNED"}, {Engine::sqlserver, "tinyint"}, {Engine::access, "BYTE"}}},
      {Type::Integer, {{Engine::mariadb, "SMALLINT"}, {Engine::sqlserver, "smallint"}, {Engine::access, "SHORT"}}},
      {Type::Long, {{Engine::mariadb, "INT"}, {Engine::sqlserver, "int"}, {Engine::access, "LONG"}}},
      {Type::Boolean, {{Engine::mariadb, "TINYINT"}, {Engine::sqlserver, "bit"}, {Engine::access, "BYTE"}}},
      {Type::Single, {{Engine::mariadb, "DOUBLE"}, {Engine::sqlserver, "real"}, {Engine::access, "SINGLE"}}},
      {Type::Money, {{Engine::mariadb, "DECIMAL(19,4)"}, {Engine::sqlserver, "money"}, {Engine::access, "CURRENCY"}}},
  };
  return all.at(type).at(engine);
}

std::vector<std::string> columns_of(std::string_view index) {
  std::vector<std::string> columns;
  std::string names(index.substr(0, index.find(" where ")));
  for (std::size_t comma = 0; (comma = names.find(", ")) != std::string::npos; names.erase(0, comma + 2)) {
    columns.push_back(names.substr(0, comma));
  }
  columns.push_back(names);
  return columns;
}

bool is_in_order_of(const Table& table, const Column& column) {
  return std::ranges::any_of(columns_of(table.order), [&](const std::string& name) { return name == column.name; });
}

std::string definition(Engine engine, const Table& table, const Column& column) {
  const bool is_key = column.name == table.key;
  std::string text = quoted(engine, column.name) + " " + words(engine, column.type);
  if (is_key) text += " NOT NULL PRIMARY KEY";
  if (!is_key && engine == Engine::sqlserver) text += " NULL";
  if (!column.initial.empty()) text += " DEFAULT " + std::string(column.initial);
  if (engine == Engine::mariadb && is_in_order_of(table, column)) {
    text.append(" NOT NULL DEFAULT ").append(column.type == Type::Key ? "''" : "0");
  }
  return text;
}

constexpr std::string_view row_key = "`RowKey` BIGINT UNSIGNED NOT NULL AUTO_INCREMENT INVISIBLE PRIMARY KEY";
constexpr std::string_view row_key_of_ordered_rows =
    "`RowKey` BIGINT UNSIGNED NOT NULL DEFAULT (UUID_SHORT()) INVISIBLE";
constexpr std::string_view number_of_id =
    "`NumberOfID` INT GENERATED ALWAYS AS (CASE WHEN CHAR_LENGTH(`ID`) BETWEEN 1 AND 9 AND `ID` NOT REGEXP '[^0-9]' "
    "THEN CAST(`ID` AS SIGNED) END) PERSISTENT INVISIBLE";
constexpr std::string_view mariadb_end =
    " ENGINE=InnoDB ROW_FORMAT=DYNAMIC DEFAULT CHARACTER SET=utf8mb4 COLLATE=utf8mb4_uca1400_as_ci";

std::string creation(Engine engine, const Table& table) {
  std::string text = "CREATE TABLE " + quoted(engine, table.name) + " (";
  for (const Column& column : table.columns) {
    text += (text.ends_with('(') ? "\n  " : ",\n  ") + definition(engine, table, column);
  }
  if (engine != Engine::mariadb) return text + "\n)";
  if (table.key.empty()) text.append(",\n  ").append(table.order.empty() ? row_key : row_key_of_ordered_rows);
  if (table.name == "ZHJYXX") text.append(",\n  ").append(number_of_id);
  if (!table.order.empty()) text.append(",\n  PRIMARY KEY (`BID`, `RowNum`, `RowKey`)");
  return text.append("\n)").append(mariadb_end);
}

std::string index_creation(Engine engine, std::string_view table, std::string_view index) {
  std::string name(table);
  std::string columns;
  for (const std::string& column : columns_of(index)) {
    name += "_" + column;
    columns += (columns.empty() ? "" : ", ") + quoted(engine, column);
  }
  return "CREATE INDEX " + quoted(engine, name) + " ON " + quoted(engine, table) + " (" + columns + ")";
}

bool same_name(std::string_view left, std::string_view right) {
  return std::ranges::equal(
      left, right, {}, [](unsigned char c) { return std::tolower(c); },
      [](unsigned char c) { return std::tolower(c); });
}

// The type of a column that may be named in another case.
Type type_of(const Table& table, std::string_view name) {
  for (const Column& column : table.columns) {
    if (same_name(column.name, name)) return column.type;
  }
  ADD_FAILURE() << table.name << " has no " << name;
  return Type::Memo;
}

// The bytes that a column may fill in an index of MariaDB; those of a text are four for each character.
std::size_t mariadb_bytes(Type type) {
  switch (type) {
    case Type::Key:
      return std::size_t{190} * 4;
    case Type::Text:
      return std::size_t{500} * 4;
    case Type::Date:
      return std::size_t{100} * 4;
    case Type::Money:
      return 9;
    default:
      return 8;
  }
}

TEST(SchemaEngines, Every_engine_has_its_name) {
  std::string names;
  for (const NamedEngine& engine : engines()) names.append(engine.name).append(" ");
  EXPECT_EQ(names, "sqlite mariadb sqlserver access ");
}

TEST(SchemaEngines, Every_table_has_its_columns_in_their_order_and_then_its_indexes) {
  for (const auto& [engine, quotes] : servers) {
    std::vector<std::string> expected;
    for (const Table& table : tables()) {
      expected.push_back(creation(engine, table));
      for (const std::string_view index : table.indexes) {
        if (engine == Engine::mariadb && index == table.order) continue;
        expected.push_back(index_creation(engine, table.name, index));
      }
      if (engine == Engine::mariadb && table.name == "ZHJYXX") {
        expected.emplace_back("CREATE INDEX `ZHJYXX_NumberOfID` ON `ZHJYXX` (`NumberOfID`)");
      }
    }
    EXPECT_EQ(statements(engine), expected);
  }
}

TEST(SchemaEngines, A_goods_unit_is_written_so) {
  const std::vector<std::string> all = statements(Engine::mariadb);
  EXPECT_NE(std::ranges::find(all,
                              "CREATE TABLE `GoodsUnit` (\n"
                              "  `id` VARCHAR(190),\n"
                              "  `Unit` VARCHAR(190),\n"
                              "  `UnitConverter` DECIMAL(19,4),\n"
                              "  `RowKey` BIGINT UNSIGNED NOT NULL AUTO_INCREMENT INVISIBLE PRIMARY KEY\n"
                              ") ENGINE=InnoDB ROW_FORMAT=DYNAMIC DEFAULT CHARACTER SET=utf8mb4 "
                              "COLLATE=utf8mb4_uca1400_as_ci"),
            all.end());
  EXPECT_NE(std::ranges::find(all, "CREATE INDEX `GoodsUnit_id_Unit` ON `GoodsUnit` (`id`, `Unit`)"), all.end());
}

TEST(SchemaEngines, What_a_voucher_settles_is_kept_in_the_order_of_the_vouchers_on_mariadb) {
  std::vector<std::string> settled = statements(Engine::mariadb);
  std::erase_if(settled, [](const std::string& text) { return text.find("`RPBRPItems`") == std::string::npos; });
  EXPECT_EQ(settled, (std::vector<std::string>{
                         "CREATE TABLE `RPBRPItems` (\n"
                         "  `BID` VARCHAR(190) NOT NULL DEFAULT '',\n"
                         "  `RowNum` SMALLINT NOT NULL DEFAULT 0,\n"
                         "  `RPableBID` VARCHAR(190),\n"
                         "  `RPableBType` TINYINT UNSIGNED,\n"
                         "  `Amount` DECIMAL(19,4) DEFAULT 0,\n"
                         "  `Remarks` LONGTEXT,\n"
                         "  `RowKey` BIGINT UNSIGNED NOT NULL DEFAULT (UUID_SHORT()) INVISIBLE,\n"
                         "  PRIMARY KEY (`BID`, `RowNum`, `RowKey`)\n"
                         ") ENGINE=InnoDB ROW_FORMAT=DYNAMIC DEFAULT CHARACTER SET=utf8mb4 "
                         "COLLATE=utf8mb4_uca1400_as_ci",
                         "CREATE INDEX `RPBRPItems_RPableBID` ON `RPBRPItems` (`RPableBID`)",
                     }));
}

TEST(SchemaEngines, Rows_of_vouchers_alone_have_an_order_which_is_one_of_their_indexes) {
  std::string names;
  for (const Table& table : tables()) {
    if (table.order.empty()) continue;
    names.append(table.name).append(" ");
    EXPECT_EQ(table.key, "") << table.name;
    EXPECT_NE(std::ranges::find(table.indexes, table.order), table.indexes.end()) << table.name;
    for (const Column& column : table.columns) {
      EXPECT_TRUE(!is_in_order_of(table, column) || column.initial.empty()) << table.name << "." << column.name;
    }
  }
  EXPECT_EQ(names, "RPBItems RPBRPItems AdvanceItems ");
}

TEST(SchemaEngines, The_highest_number_of_the_journal_is_asked_for_alone) {
  for (const Table& table : tables()) EXPECT_EQ(table.numbered, table.name == "ZHJYXX" ? "ID" : "") << table.name;
}

TEST(SchemaEngines, What_stands_in_an_index_is_a_key_or_a_number) {
  for (const Table& table : tables()) {
    std::vector<std::string> names;
    if (!table.key.empty()) names.emplace_back(table.key);
    if (!table.numbered.empty()) names.emplace_back(table.numbered);
    for (const std::string_view index : table.indexes) std::ranges::copy(columns_of(index), std::back_inserter(names));
    for (const std::string& name : names) {
      const Type type = type_of(table, name);
      EXPECT_TRUE(type != Type::Text && type != Type::Memo && type != Type::Date) << table.name << "." << name;
    }
  }
}

TEST(SchemaEngines, A_key_has_one_width_wherever_it_goes) {
  for (const Table& table : tables()) {
    for (const Column& column : table.columns) {
      for (const std::string_view name : {"GId", "Class", "Model1", "Model2", "Unit", "BillId", "Bid", "Supplier"}) {
        EXPECT_TRUE(!same_name(name, column.name) || column.type == Type::Key) << table.name << "." << column.name;
      }
    }
  }
}

TEST(SchemaEngines, The_widest_row_has_a_place_on_mariadb) {
  for (const Table& table : tables()) {
    std::size_t bytes = 8;
    std::size_t in_page = 8;
    for (const Column& column : table.columns) {
      const bool is_text = words(Engine::mariadb, column.type).starts_with("VARCHAR");
      // A text has its length in front, and any column a bit that tells a null.
      bytes += (column.type == Type::Memo ? 12 : mariadb_bytes(column.type) + (is_text ? 2 : 0)) + 1;
      // What is wider than 255 bytes leaves at most 40 of them in the page.
      in_page += is_text || column.type == Type::Memo ? 42 : 9;
      EXPECT_TRUE(!is_text || mariadb_bytes(column.type) > 255) << table.name << "." << column.name;
    }
    EXPECT_LE(bytes, 65535U) << table.name;
    EXPECT_LE(in_page, 8126U) << table.name;
  }
}

TEST(SchemaEngines, The_longest_keys_have_a_place_in_every_index) {
  for (const Table& table : tables()) {
    for (const std::string_view index : table.indexes) {
      std::size_t mariadb = 0;
      std::size_t sqlserver = 0;
      for (const std::string& name : columns_of(index)) {
        const Type type = type_of(table, name);
        mariadb += mariadb_bytes(type);
        sqlserver += type == Type::Key ? 190 * 2 : 8;
      }
      EXPECT_LE(mariadb, 3072U) << table.name << " " << index;
      EXPECT_LE(sqlserver, 1700U) << table.name << " " << index;
      EXPECT_LE(columns_of(index).size(), 10U) << table.name << " " << index;
    }
  }
}

TEST(SchemaEngines, No_name_is_longer_than_an_engine_takes) {
  for (const auto& [engine, quotes] : servers) {
    for (const std::string& statement : statements(engine)) {
      for (std::size_t place = 0; (place = statement.find(quotes.opening, place)) != std::string::npos;) {
        const std::size_t end = statement.find(quotes.closing, ++place);
        EXPECT_LE(end - place, 64U) << statement;
        place = end + 1;
      }
    }
  }
}

// As a fresh database has them.
std::vector<LaidTable> all_on_mariadb() {
  std::vector<LaidTable> all;
  for (const Table& table : tables()) {
    LaidTable& laid = all.emplace_back(LaidTable{std::string(table.name), {}, {"PRIMARY"}});
    for (const Column& column : table.columns) laid.columns.emplace_back(column.name);
    if (table.key.empty()) laid.columns.emplace_back("RowKey");
    if (!table.numbered.empty()) laid.columns.emplace_back("NumberOfID");
    laid.key = columns_of(table.order.empty() ? table.key : table.order);
    if (table.key.empty()) laid.key.emplace_back("RowKey");
    for (const std::string& statement : statements(Engine::mariadb)) {
      const std::string end = "` ON `" + laid.name + "` (";
      const std::size_t place = statement.find(end);
      if (place != std::string::npos) laid.indexes.push_back(statement.substr(14, place - 14));
    }
  }
  return all;
}

LaidTable& table_of(std::vector<LaidTable>& all, std::string_view name) {
  return *std::ranges::find(all, name, &LaidTable::name);
}

TEST(SchemaEngines, Nothing_is_lacking_where_everything_is_laid_on_mariadb) {
  EXPECT_EQ(lacking_statements(Engine::mariadb, all_on_mariadb()), std::vector<std::string>{});
}

TEST(SchemaEngines, A_table_on_mariadb_gets_the_columns_and_indexes_that_it_lacks) {
  std::vector<LaidTable> all = all_on_mariadb();
  std::erase(table_of(all, "goods").columns, "AverageCost");
  std::erase(table_of(all, "goods").columns, "TecParameters");
  std::erase(table_of(all, "StockBill").indexes, "StockBill_Type_Id");
  std::erase_if(all, [](const LaidTable& table) { return table.name == "Warehouse"; });
  EXPECT_EQ(lacking_statements(Engine::mariadb, all),
            (std::vector<std::string>{
                "ALTER TABLE `goods` ADD COLUMN `AverageCost` DECIMAL(19,4) DEFAULT 0",
                "ALTER TABLE `goods` ADD COLUMN `TecParameters` LONGTEXT",
                "CREATE TABLE `Warehouse` (\n  `id` VARCHAR(190) NOT NULL PRIMARY KEY,\n  `WName` VARCHAR(500)\n)" +
                    std::string(mariadb_end),
                "CREATE INDEX `StockBill_Type_Id` ON `StockBill` (`Type`, `Id`)",
            }));
}

TEST(SchemaEngines, The_journal_on_mariadb_gets_its_numbers_before_their_index) {
  std::vector<LaidTable> all = all_on_mariadb();
  std::erase(table_of(all, "ZHJYXX").columns, "NumberOfID");
  std::erase(table_of(all, "ZHJYXX").indexes, "ZHJYXX_NumberOfID");
  EXPECT_EQ(lacking_statements(Engine::mariadb, all),
            (std::vector<std::string>{"ALTER TABLE `ZHJYXX` ADD COLUMN " + std::string(number_of_id),
                                      "CREATE INDEX `ZHJYXX_NumberOfID` ON `ZHJYXX` (`NumberOfID`)"}));
}

TEST(SchemaEngines, A_table_on_mariadb_gets_a_primary_key_where_it_has_none) {
  std::vector<LaidTable> all = all_on_mariadb();
  LaidTable& rows = table_of(all, "StockBillItems");
  std::erase(rows.columns, "RowKey");
  EXPECT_EQ(lacking_statements(Engine::mariadb, all), std::vector<std::string>{}) << "It has one of the host's own.";
  std::erase(rows.indexes, "PRIMARY");
  EXPECT_EQ(lacking_statements(Engine::mariadb, all),
            std::vector<std::string>{"ALTER TABLE `StockBillItems` ADD COLUMN " + std::string(row_key)});
}

TEST(SchemaEngines, A_table_on_mariadb_whose_rows_are_in_another_order_has_or_gets_the_index_that_leads_to_them) {
  std::vector<LaidTable> all = all_on_mariadb();
  LaidTable& rows = table_of(all, "RPBRPItems");
  rows.key = {"RowKey"};
  rows.indexes.emplace_back("RPBRPItems_BID_RowNum");
  EXPECT_EQ(lacking_statements(Engine::mariadb, all), std::vector<std::string>{}) << "It was laid so once.";
  rows.indexes.pop_back();
  const std::string index = "CREATE INDEX `RPBRPItems_BID_RowNum` ON `RPBRPItems` (`BID`, `RowNum`)";
  EXPECT_EQ(lacking_statements(Engine::mariadb, all), std::vector<std::string>{index});
  rows.key = {"BID"};
  EXPECT_EQ(lacking_statements(Engine::mariadb, all), std::vector<std::string>{index});
  rows.key = {"bid", "rownum"};
  EXPECT_EQ(lacking_statements(Engine::mariadb, all), std::vector<std::string>{}) << "A host's own key.";
  rows = {"RPBRPItems", {"BID", "RPableBID", "RPableBType", "Amount", "Remarks"}, {"RPBRPItems_RPableBID"}};
  EXPECT_EQ(lacking_statements(Engine::mariadb, all),
            (std::vector<std::string>{"ALTER TABLE `RPBRPItems` ADD COLUMN `RowNum` SMALLINT",
                                      "ALTER TABLE `RPBRPItems` ADD COLUMN " + std::string(row_key), index}));
}

TEST(SchemaEngines, Rows_that_are_there_get_the_initial_value_of_a_lacking_column_on_every_engine) {
  const std::vector<LaidTable> old{{"ContactsCompany", {"id", "FullName"}, {}}, {"ZHXX", {"ID", "ZH", "KHH"}, {}}};
  const auto of_account = [&](Engine engine) {
    std::vector<std::string> list = lacking_statements(engine, old);
    std::erase_if(list, [&](const std::string& statement) {
      return statement.starts_with("CREATE") || statement.find(quoted(engine, "ZHXX")) == std::string::npos;
    });
    return list;
  };
  EXPECT_EQ(of_account(Engine::sqlserver),
            (std::vector<std::string>{"ALTER TABLE [ZHXX] ADD [YE] money NULL DEFAULT 0 WITH VALUES",
                                      "ALTER TABLE [ZHXX] ADD [ZHLX] smallint NULL"}));
  EXPECT_EQ(of_account(Engine::access),
            (std::vector<std::string>{"ALTER TABLE [ZHXX] ADD COLUMN [YE] CURRENCY DEFAULT 0",
                                      "UPDATE [ZHXX] SET [YE] = 0", "ALTER TABLE [ZHXX] ADD COLUMN [ZHLX] SHORT"}));
}

}  // namespace
