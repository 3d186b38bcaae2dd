// With which status a voucher is saved.
#pragma once

#include "brunvik/ado/types.h"

namespace brunvik {

// Saved and waiting for its audit, where the audit of accounts is in use; else audited from the beginning, though it
// has settled nothing yet. The setting is read at each call.
Long status_of_saved_voucher();

}  // namespace brunvik
