#include "tests/support/failures.h"

#include <gtest/gtest.h>

namespace brunvik::test {

Long error_of(ado::Connection& connection, std::string_view statement) {
  const auto failure = failure_of([&] { connection.Execute(statement); });
  if (failure.number() == 0) return 0;
  EXPECT_FALSE(failure.description().empty());
  EXPECT_EQ(failure.statement(), statement);
  return failure.number();
}

}  // namespace brunvik::test
