// What a test asks the books that it has laid.
#pragma once

#include <string>
#include <string_view>

#include "brunvik/ado/connection.h"

namespace brunvik::test {

class AskedBooks {
 public:
  virtual ~AskedBooks() = default;

 protected:
  virtual ado::Connection& asked() = 0;

  ado::Recordset run(std::string_view statement) { return asked().Execute(statement); }

  // The first value of the first record.
  ado::Value value(std::string_view statement) {
    const ado::Recordset set = run(statement);
    return set.at_end() ? ado::Value() : set.value(ado::Column{0});
  }
  std::string text(std::string_view statement) { return value(statement).joined_text(); }
  Long count(std::string_view statement) { return value(statement).as_long(); }
};

}  // namespace brunvik::test
