#include "brunvik/repair/customer_return.h"

#include "brunvik/foundation/late_binding.h"
#include "brunvik/settlement/receipt_bill.h"

namespace brunvik {

const Members& CustomerReturn::table() {
  using C = CustomerReturn;
  static const Members table = repair_members({
      .behind_kind = {property<&C::KeHuBH>("KeHuBH", "Receiver"), property<&C::JingBanRen>("JingBanRen", "Salesman"),
                      property<&C::ChuKuRen>("ChuKuRen", "SManager"), property<&C::BillAmount>("BillAmount", "Amount"),
                      property<&C::PayMethod>("PayMethod", "PayMethod").not_read(),
                      property<&C::Paidamount>("Paidamount", "Paidamount"),
                      property<&C::Closeamount>("Closeamount", "Closeamount"),
                      property<&C::Discounttype>("Discounttype", "DiscountType"),
                      property<&C::Discountcard>("Discountcard", "DiscountCard"),
                      property<&C::Discountrate>("Discountrate", "DiscountRate").not_read(),
                      property<&C::Invoicename>("Invoicename", "Invoicename"),
                      property<&C::Invoicetype>("Invoicetype", "Invoicetype"),
                      property<&C::tax_rate_>("Taxrate", "Taxrate").read_only(),
                      property<&C::Deliverymethod>("Deliverymethod", "Deliverymethod"),
                      computed<&C::Closedtag>("Closedtag", "Closedtag"),
                      property<&C::Nowpaybillid>("Nowpaybillid", "NowPayBillId")},
      .verbs = {verb<&C::ClearBillItems>("ClearBillItems")},
  });
  return table;
}

// A payment is stored with an audited document alone.
DocumentForm CustomerReturn::made_form() const {
  return repair_form(
      kind(), table(),
      {.insert = "insert into RGStockBill(Id,ManualId,Receiver,ProcessFlag,Salesman,SManager,Invoicename,Invoicetype,"
                 "Taxrate,Deliverymethod,Closedtag,Amount,PayMethod,Paidamount,Closeamount,DiscountType,DiscountCard,"
                 "DiscountRate,InOutFlag,Status,Creator,CreateTime,Summary,Remarks,NowPayBillId[,Auditor,AuditTime]) "
                 "values(",
       .update = "Update RGStockBill set ManualId = ,Receiver = ,ProcessFlag = ,Salesman = ,SManager = ,"
                 "Invoicename = ,Invoicetype = ,Taxrate = ,Deliverymethod = ,Closedtag = ,Amount = ,PayMethod = ,"
                 "[Paidamount = |Paidamount=],Closeamount = ,DiscountType = ,DiscountCard = ,DiscountRate = ,"
                 "[InOutFlag = ,]Status = ,Summary = ,Remarks = ,NowPayBillId = [,Auditor = ,AuditTime = ] where Id=",
       .insert_row = "Insert into RGStockBillItems(BillId,RowNum,GId,GName,GBarcode,Class,Model1,Model2,unit,qty,price,"
                     "Amount,StoreHouse,BrokenDspt,FixMeans,remarks,OutFactoryDate,Equipcode,Buydate,GuanLianBill,"
                     "DYRowNum" +
                     std::string(own_row_columns()) + ") values( ",
       .header_sources = {constant_unless_audited("Paidamount", 0)}});
}

void CustomerReturn::audit_money() const { audit_voucher<clsReceiptBill>(Nowpaybillid); }
void CustomerReturn::undo_money() const { undo_voucher<clsReceiptBill>(Nowpaybillid); }

Long CustomerReturn::take_back() {
  if (!Nowpaybillid.empty()) loaded_voucher<clsReceiptBill>(Nowpaybillid).Delete();
  return 0;
}

Long CustomerReturn::ClearBillItems() noexcept {
  RGBillItems.clear();
  return 0;
}

}  // namespace brunvik
