// A failed expectation also says the last failure of the thread: the number that a verb gave says little by itself.
#pragma once

#include <gtest/gtest.h>

#include <iosfwd>

namespace brunvik::test {

class LastFailureListener final : public ::testing::EmptyTestEventListener {
 public:
  explicit LastFailureListener(std::ostream& out) : out_(out) {}

  void OnTestPartResult(const ::testing::TestPartResult& result) override;

 private:
  std::ostream& out_;
};

}  // namespace brunvik::test
