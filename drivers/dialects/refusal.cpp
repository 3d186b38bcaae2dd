#include "drivers/dialects/refusal.h"

#include <utility>

#include "brunvik/ado/errors.h"

namespace brunvik::dialects {

void refuse(std::string reason, std::string_view statement) {
  throw ado::RuntimeError(ado::error::statement_refused, std::move(reason), std::string(statement));
}

}  // namespace brunvik::dialects
