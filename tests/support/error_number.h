#pragma once

#include "brunvik/ado/errors.h"

namespace brunvik::test {

// The number of the run-time error that the work ends with, 0 without one.
template <class Work>
Long error_number(Work&& work) {
  try {
    work();
    return 0;
  } catch (const ado::RuntimeError& failure) {
    return failure.number();
  }
}

}  // namespace brunvik::test
