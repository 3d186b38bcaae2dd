// Where every test binary begins.
#include <gtest/gtest.h>

#include <iostream>

#include "tests/support/last_failure_listener.h"

int main(int count, char** words) {
  testing::InitGoogleTest(&count, words);
  // The list of listeners owns it.
  testing::UnitTest::GetInstance()->listeners().Append(new brunvik::test::LastFailureListener(std::cout));
  return RUN_ALL_TESTS();
}
