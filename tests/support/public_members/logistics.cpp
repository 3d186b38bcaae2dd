// Shipment and freight settlement, and their rows.
#include "tests/support/public_members/expected.h"

namespace brunvik::test {

namespace {

const ExpectedClass shipment("clsSendGoodsBill", R"(
property Connection: ADOConn
collection Collection: colBillItems colSendBillItems
property String: YFZFZH
property Integer: Jsbj
property String: ID Receiveunit Receiver Receiveaddress Receivetel Sendgoodsunit Sendgoodser Sendgoodstel
property String: Logisticcompany
property Money: Logisticfare
property Byte: Collecttag
property String: Receiptcasher Openingbank Bankaccount
property Money: Receiptmoney
property String: Sendgoodsdate Remarks Operater Operatedate
property Long: Status
verb Long: Save()
verb Variant: SaveAsDraft(&Status:Long)
verb Long: Delete() UpdateItems() GetNewId(&BID:String) LoadLast() GetLastId(&LastId:String) LoadById(&BID:String)
verb Long: LoadNext() LoadPreviou()
)" + near_verb());

const ExpectedClass freight_settlement("clsSendGoodsVouchersbill", R"(
property Connection: ADOConn
collection Collection: colSGVItems
property String: ID Manualid Manager Ccompany
property Money: Paidamount Amount
property Long: Status
property String: Creator Createtime Auditor Audittime Remarks
property Long: Sxfbl Sxfzd
property String: Dszh
verb Long: Save() SaveAsDraft() LoadById(&BID:String) Delete() LoadLast() LoadNext() LoadPreviou()
verb Long: GetPreviousId(CurBillID:String,&PreviousId:String) GetLastId(&LastId:String)
verb Long: GetNextId(CurBillID:String,&NextId:String) GetNewId(&BID:String)
verb Long: Audite(&?Auditor:String=,&?Audittime:String=) UndoAudite()
)");

const ExpectedRecord shipment_row("ShipmentRow", R"(
property String: Billid
property Integer: Rownum
property Long: Gstutas
property String: Businessclass Gid Gbarcode Gname Class Model1 Model2 Unit
property Single: Qty
property Money: Price Amount
property String: Supplier Receiver Outfactorydate Equipcode Buydate Accessory Remarks Bid
property Long: BType
property String: BillDate
)");

const ExpectedRecord shipped_bill_row("ShippedBillRow", R"(
property String: Billid Bid
property Long: DYType
property Money: Closeamount Paidamount
property String: Creator Createtime Auditor Audittime Remarks
property Integer: DJBJ SKLX
)");

const ExpectedRecord freight_row("FreightRow", R"(
property String: BID
property Integer: Rownum
property String: Rpablebid
property Money: Amount Paidamount
property String: Ccompany Fhtime Remarks ReceptId PayId Sendgoodstel
)");

}  // namespace

}  // namespace brunvik::test
