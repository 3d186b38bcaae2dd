// The short form of the after-service ticket, which may carry a borrow document along: goods that were lent to the
// customer while his own are looked after. A ticket owns the borrow document that it started.
#pragma once

#include "brunvik/repair/service_ticket.h"

namespace brunvik {

class clsAfterServiceBillInfo final : public RequestedTicket {
 public:
  // Writes the ticket: one that is stored is updated. -1 without a number. Both verbs do the same.
  Long SaveRequest() noexcept { return Save(); }
  Long SaveAfterServiceBillInfo() noexcept { return Save(); }

  // Gives the stored ticket this status and writes nothing else; the object keeps its own.
  Long UpdateAfterServiceBillInfoAsDraft(Long to) noexcept;

  // Removes the borrow document's header, where the ticket has one, then the ticket. The document's rows and what it
  // moved in the stock stay, even if it is audited. Nothing happens without a number.
  Long Delete() noexcept;

  const Kind& kind() const override { return kind::clsAfterServiceBillInfo; }
  const Members& members() const override;

 protected:
  const Insert& request_insert() const override;
  const Update& request_update() const override;
  Walked walked() const override;
};

}  // namespace brunvik
