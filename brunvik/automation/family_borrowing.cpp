#include "brunvik/automation/family.h"
#include "brunvik/borrowing/borrow_in.h"
#include "brunvik/borrowing/borrow_out.h"
#include "brunvik/borrowing/borrow_return.h"

namespace brunvik::automation {

Family borrowing() {
  return {{document<clsBorrowIn>(), document<clsBorrowOut>(), document<clsBorrowInReturn>(),
           document<clsBorrowOutReturn>(), document<clsBorrowInBjkc>(), document<clsBorrowOutBjkc>()},
          {record<BorrowRow>("BorrowRow"), record<BorrowLink>("BorrowLink")}};
}

}  // namespace brunvik::automation
