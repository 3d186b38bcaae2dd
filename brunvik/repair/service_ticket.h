// What the after-service tickets (售后服务) share. A ticket records what a customer asked for and what came of it: who
// was sent, what it cost, how the customer judged it. All tickets are rows of AfterServiceBill and have no rows of
// their own.
//
// Each verb tells the user of its own error, under its name; a verb that is made of others leaves it to them.
#pragma once

#include <string>
#include <string_view>

#include "brunvik/billframe/bill.h"
#include "brunvik/foundation/column_statement.h"

namespace brunvik {

class ServiceTicket : public Bill {
 public:
  // The customer.
  std::string KeHuBH;
  std::string Repairobject, Cusprovdoc;
  std::string Brokentype, Brokendsp;
  // The document that the ticket refers to: on the short form the borrow document lent for the service.
  std::string Referbillid;
  std::string Servicefee, Areafee;
  // The account that takes the money, and the money that came in.
  std::string Paytype;
  Money Paidamount;
  std::string Handleresult;
  std::string Arrivedate, Finishdate;
  std::string Cusappraise;

  // The lowest number, empty where there is none.
  Long GetFirstId(std::string& FirstId) noexcept;

  using Bill::GetNextId;
  using Bill::GetPreviousId;

  // Removes the ticket; 0 also where there is none.
  Long Delete() noexcept;

 protected:
  // The verbs that tell the numbers beside one, the first and the last, as they stand in every ticket's table.
  static MemberGroup neighbour_numbers();

  // Which tickets a walk meets: a condition that stands in front of the number, with its "and ", and one behind it.
  struct Walked {
    std::string_view before;
    std::string after;
  };
  virtual Walked walked() const = 0;

  void save_rows() override {}
  void read_header() override;
  void read_rows() override {}
  void remove_rows() override {}
  void remove_header() override;
  void find_last(std::string& last, std::string_view series) override;
  void find_near(const std::string& current, std::string& near, bool next, std::string_view series) override;
};

// A ticket that is written by its stages or in its short form: both have the same properties.
class RequestedTicket : public ServiceTicket {
 public:
  std::string BillId;
  std::string Contactperson, Contactphone, Contactmoblie, Contactaddress;
  std::string Expirationdate, Buydate;
  std::string Repairtype, Advisitdate, Customerkind;
  std::string Equiptype, Equipnum;
  // The stage: 1 request, 2 forecast, 3 completed, 4 feedback.
  Integer Processflag = 0;

  // The forecast.
  std::string Servicedate, Estimatedate, Estimator, Executor, Solution, Estimatornote, Executornote;
  std::string Fittingsfee;

  // The feedback.
  std::string Feedbackor, Manyilevel, Checksvrfee, Score, Lastopinion;
  Integer Isfinished = 0;

  std::string Lastmoditime;
  // Who assigned the job, who closed it, who took the feedback, and when.
  std::string PaiDanRen, PaiDanTime, JieDanRen, JieDanTime, FanKuiRen, FanKuiTime;

  // The next free number of today. Nothing reserves it.
  Long GetNewId(std::string& BID) noexcept;

 protected:
  // The properties in their public order. `borrow_column` keeps Referbillid.
  static MemberGroup properties(std::string_view borrow_column);
  // Reading and walking, which stand behind a ticket's own verbs.
  static MemberGroup walking_verbs();

  std::string& number() override { return BillId; }
  using Bill::number;

  // Inserts the request, or updates the one that is stored under this number; -1 without a number.
  void save_header(Saving saving) override;
  // What the object takes on before it is saved as a request.
  virtual void before_request() {}
  virtual const Insert& request_insert() const = 0;
  virtual const Update& request_update() const = 0;
};

}  // namespace brunvik
