// The rows that the recording driver answers a SELECT with, given as strictly as SQL Server's own driver gives them: a
// value can be asked for behind the last column that is bound alone, and from the left to the right.
#pragma once

#include <sql.h>

#include <array>
#include <string>
#include <string_view>

namespace brunvik::test {

class Answer {
 public:
  static constexpr SQLUSMALLINT columns = 4;

  void describe(SQLUSMALLINT number, std::string& name, SQLSMALLINT& type, SQLULEN& size) const;
  void bind(SQLUSMALLINT number, SQLSMALLINT form, SQLPOINTER place, SQLLEN room, SQLLEN* length);
  void unbind() { places_ = {}; }
  void close();
  SQLRETURN fetch();
  SQLRETURN value(SQLUSMALLINT number, SQLSMALLINT form, SQLPOINTER place, SQLLEN room, SQLLEN* length);

 private:
  struct Place {
    SQLSMALLINT form = 0;
    SQLPOINTER place = nullptr;
    SQLLEN room = 0;
    SQLLEN* length = nullptr;
  };

  SQLUSMALLINT last_bound() const;
  SQLRETURN put(std::string_view text, const Place& into) const;

  std::array<Place, columns> places_{};
  int row_ = 0;
  SQLUSMALLINT asked_ = 0;
  std::size_t given_ = 0;  // of the text that is asked for
};

// What stands in a column of a row, both from one on.
std::string text_in(int row, SQLUSMALLINT column);

}  // namespace brunvik::test
