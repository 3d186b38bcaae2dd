// The scene of a host's own transaction on small books: a warehouse that is entered, and what the verbs end with.
#pragma once

#include <string_view>

#include "tests/support/error_number.h"

namespace brunvik::test {

// `Books` is a fixture with small books in `books`.
template <class Books>
class TransactionScene : public Books {
 protected:
  static constexpr std::string_view one_warehouse = "insert into Warehouse(Id,WName) values('W1','东仓')";

  Long warehouses() { return this->count("select count(*) from Warehouse"); }

  // The number of the error, 0 without one.
  Long begin() {
    return error_number([this] { this->books->BeginTrans(); });
  }
  Long commit() {
    return error_number([this] { this->books->CommitTrans(); });
  }
  Long roll_back() {
    return error_number([this] { this->books->RollbackTrans(); });
  }
};

}  // namespace brunvik::test
