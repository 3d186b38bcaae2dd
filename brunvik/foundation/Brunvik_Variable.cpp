#include "brunvik/foundation/Brunvik_Variable.h"

namespace brunvik {

inline namespace Brunvik_Variable {

SessionGlobals& session() noexcept {
  thread_local SessionGlobals globals;
  return globals;
}

}  // namespace Brunvik_Variable

}  // namespace brunvik
