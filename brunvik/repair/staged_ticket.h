// The staged form of the after-service ticket: request, forecast, completion, feedback. A staged ticket has no type.
#pragma once

#include "brunvik/repair/service_ticket.h"

namespace brunvik {

class clsAfterServiceBillInfoOLD final : public RequestedTicket {
 public:
  // Writes the request as stage 1: a ticket that is stored is updated. -1 without a number.
  Long SaveRequest() noexcept { return Save(); }

  // Moves the stored ticket to a stage and writes nothing else; nothing stops it from going back. The object keeps its
  // own stage.
  Long SetBillProccess(Integer stage) noexcept;

  // Writes the request and the forecast, as stage 2.
  Long Forecast() noexcept;

  // Writes the request and what was done, as stage 3. With a Paidamount above 0 that money goes into the account of
  // Paytype, through the journal and each time that the verb runs; a failure there is told, and the verb is done.
  Long Complete() noexcept;

  // Writes what the customer says of it, as stage 4.
  Long Feedback() noexcept;

  const Kind& kind() const override { return kind::clsAfterServiceBillInfoOLD; }
  const Members& members() const override;

 protected:
  void before_request() override;
  const Insert& request_insert() const override;
  const Update& request_update() const override;

  // Staged tickets at or past the object's stage: a list at stage 2 also shows stages 3 and 4.
  Walked walked() const override;

 private:
  void take_money() const;
};

}  // namespace brunvik
