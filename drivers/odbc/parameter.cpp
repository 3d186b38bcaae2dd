#include "drivers/odbc/parameter.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "drivers/odbc/failure.h"

namespace brunvik::odbc {

namespace {

constexpr std::size_t shortest_room = 64;
constexpr std::size_t longest_kept = 4'096;

}  // namespace

void Parameter::bind(const Statement& statement, SQLUSMALLINT number, SQLSMALLINT form, SQLSMALLINT type) {
  try {
    expect(SQLBindParameter(statement.get(), number, SQL_PARAM_INPUT, form, type, room_.size(), 0, room_.data(),
                            static_cast<SQLLEN>(room_.size()), &length_),
           statement);
  } catch (...) {
    room_.clear();
    throw;
  }
}

void Parameter::put(std::string_view text, const Statement& statement, SQLUSMALLINT number) {
  if (room_.size() < std::max<std::size_t>(text.size(), 1)) {
    room_.assign(std::max(std::bit_ceil(text.size()), shortest_room), '\0');
    bind(statement, number, SQL_C_CHAR, SQL_VARCHAR);
  }
  std::memcpy(room_.data(), text.data(), text.size());
  length_ = static_cast<SQLLEN>(text.size());
}

void Parameter::put(std::int64_t whole_number, const Statement& statement, SQLUSMALLINT number) {
  if (room_.empty()) {
    room_.assign(sizeof whole_number, '\0');
    bind(statement, number, SQL_C_SBIGINT, SQL_BIGINT);
  }
  std::memcpy(room_.data(), &whole_number, sizeof whole_number);
}

void Parameter::let_go() noexcept {
  if (room_.size() > longest_kept) std::vector<char>().swap(room_);
}

}  // namespace brunvik::odbc
