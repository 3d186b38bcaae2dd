#include "tests/support/last_failure_listener.h"

#include <ostream>

#include "brunvik/foundation/last_failure.h"

namespace brunvik::test {

void LastFailureListener::OnTestPartResult(const ::testing::TestPartResult& result) {
  const Failure& failure = last_failure();
  if (!result.failed() || failure.number == 0) return;
  out_ << "  last failure: " << failure.number << ' ' << failure.text << '\n';
  if (!failure.statement.empty()) out_ << "  in:           " << failure.statement << '\n';
  out_.flush();
}

}  // namespace brunvik::test
