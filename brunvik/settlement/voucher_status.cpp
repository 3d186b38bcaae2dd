#include "brunvik/settlement/voucher_status.h"

#include "brunvik/foundation/Declare_Const.h"
#include "brunvik/foundation/Declare_EnumType.h"
#include "brunvik/foundation/GetValue_Function.h"

namespace brunvik {

Long status_of_saved_voucher() {
  return GetKeyValue(config::audit_of_accounts) == "1" ? status::saved : status::audited;
}

}  // namespace brunvik
