// The mending of sales that went out before any cost was known.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "brunvik/ado/connection.h"

namespace brunvik {

// Costs the rows of audited sales issues and sales returns of these goods that still have cost 0 at the average of now,
// and adds that to the cost of their bills. The rows are searched on the connection given, the unit factors on the
// session's; `run_update` carries the two updates of each row out, on the road of the document. Nothing happens without
// goods. An error ends it; what was mended before stays.
//
// The join goes by the goods id alone: of goods with several models each costs the row in turn.
void update_zero_cost_issues(const ado::ConnectionReference& connection, std::string_view goods,
                             const std::function<void(std::string statement)>& run_update);

}  // namespace brunvik
