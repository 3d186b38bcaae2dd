// The closing of an after-service ticket in one step: what was done, what it cost, and the ticket is finished.
//
// Save closes the ticket that is stored under ID: it becomes one of the short form, completed and finished. A ticket
// that isn't there is not made, and the result is 0; -1 with an empty ID.
#pragma once

#include "brunvik/repair/service_ticket.h"

namespace brunvik {

class clsAfterServiceWGBill final : public ServiceTicket {
 public:
  // The borrow document lent for the service; Referbillid holds another one that the ticket refers to.
  std::string BorrowBill;

  const Kind& kind() const override { return kind::clsAfterServiceWGBill; }
  const Members& members() const override;

 protected:
  void save_header(Saving saving) override;

  // Closed tickets alone.
  Walked walked() const override;

 private:
  void update_bill() const;
};

}  // namespace brunvik
