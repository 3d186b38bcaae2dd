#include "schema/engine_words.h"

namespace brunvik::schema {

const EngineWords& words_of(Engine engine) {
  switch (engine) {
    case Engine::sqlite:
      return sqlite_words();
    case Engine::mariadb:
      return mariadb_words();
    case Engine::sqlserver:
      return sqlserver_words();
    case Engine::access:
      return access_words();
  }
  return sqlite_words();
}

std::vector<OwnColumn> no_own_columns(const Table&) { return {}; }

std::string no_order(const Table&) { return {}; }

Index described_index(std::string_view text) {
  constexpr std::string_view where = " where ";
  const auto condition = text.find(where);
  if (condition == std::string_view::npos) return {std::string(text)};
  return {std::string(text.substr(0, condition)), std::string(text.substr(condition + where.size()))};
}

std::vector<Index> plain_indexes(const Table& table) {
  std::vector<Index> list;
  for (const std::string_view text : table.indexes) list.push_back({described_index(text).columns});
  return list;
}

}  // namespace brunvik::schema
