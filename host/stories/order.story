订货：订打印机 10 台，分两次到货，到齐之后订单结清
@include company
@include stock-tables

@table 进货订单: 单号 | 往来单位 >订货 >已到 结清
select PurchaseOrder.Id,ContactsCompany.FullName,PurchaseOrderItems.qty,PurchaseOrderItems.Actualqty,
case PurchaseOrder.SendClosedtag when 1 then '是' else '否' end from (PurchaseOrder left join PurchaseOrderItems on
PurchaseOrder.Id=PurchaseOrderItems.BillId) left join ContactsCompany on PurchaseOrder.Supplier=ContactsCompany.id
order by PurchaseOrder.Id

@table 进货入库: 单号 | 往来单位 状态 >应结 >成本 订单号
select StockBill.Id,ContactsCompany.FullName,case StockBill.Status when 3 then '已审核' else '未审核' end,
StockBill.CloseAmount,StockBill.BillCost,StockBill.Referbillid from StockBill left join ContactsCompany on
StockBill.Supplier=ContactsCompany.id order by StockBill.Id

@table 到货记录: 订单号 进货单号 | 商品 >数量
select PurchaseOrderList.PurOrderId,PurchaseOrderList.PurInId,goods.Gname,PurchaseOrderList.Qty from PurchaseOrderList
left join goods on PurchaseOrderList.Goodsid=goods.id order by PurchaseOrderList.PurInId

= 向东方办公设备厂订打印机 10 台：不动库存，也不动往来账
{"do":"new","as":"进货订单","class":"clsPurOrderBill"}
{"do":"call","on":"进货订单","verb":"GetNewId","args":[""]}
{"do":"put","on":"进货订单","values":{"ID":"$进货订单","Supplier":"C1","BillCost":6000,"Creator":"u1","Createtime":"$now"}}
{"do":"add","on":"进货订单","rows":"colBillItems","row":{"BillId":"$进货订单","Rownum":1,"Gid":"G1","Gname":"激光打印机","Class":"办公","Unit":"台","UQty":10,"Qty":10,"price":600,"Amount":6000}}
{"do":"call","on":"进货订单","verb":"Save"}

= 第一批到货 6 台：订单还开着
{"do":"new","as":"进货入库","class":"clsPurchaseInBill"}
{"do":"call","on":"进货入库","verb":"GetNewId","args":[""]}
{"do":"put","on":"进货入库","values":{"ID":"$进货入库","Vendor":"C1","Amount":3600,"Closeamount":3600,"Referflag":1,"Referbillid":"$进货订单","Creator":"u1","Createtime":"$now"}}
{"do":"add","on":"进货入库","rows":"colBillItems","row":{"BillId":"$进货入库","Rownum":1,"Gid":"G1","Gname":"激光打印机","Class":"办公","Unit":"台","Qty":6,"Actualqty":6,"price":600,"Amount":3600,"Receiver":"W1"}}
{"do":"call","on":"进货入库","verb":"Save"}
{"do":"put","on":"进货入库","values":{"Auditor":"u2","Audittime":"$now"}}
{"do":"call","on":"进货入库","verb":"Audit","args":[true]}
{"do":"call","on":"进货订单","verb":"SavePurOrderLists","args":[{"rows":[{"PurOrderId":"$进货订单","PurInId":"$进货入库","OrderRownum":1,"PurRownum":1,"Goodsid":"G1","unit":"台","Qty":6}]}]}
{"do":"call","on":"进货订单","verb":"AddSaleOrderQty","args":[{"row":{"PurOrderId":"$进货订单","PurInId":"$进货入库","OrderRownum":1,"PurRownum":1,"Goodsid":"G1","unit":"台","Qty":6}}]}
{"do":"call","on":"进货订单","verb":"SetSaleClose","args":["$进货订单"]}

= 第二批到货 4 台：到齐了，订单结清
{"do":"new","as":"进货入库","class":"clsPurchaseInBill"}
{"do":"call","on":"进货入库","verb":"GetNewId","args":[""]}
{"do":"put","on":"进货入库","values":{"ID":"$进货入库","Vendor":"C1","Amount":2400,"Closeamount":2400,"Referflag":1,"Referbillid":"$进货订单","Creator":"u1","Createtime":"$now"}}
{"do":"add","on":"进货入库","rows":"colBillItems","row":{"BillId":"$进货入库","Rownum":1,"Gid":"G1","Gname":"激光打印机","Class":"办公","Unit":"台","Qty":4,"Actualqty":4,"price":600,"Amount":2400,"Receiver":"W1"}}
{"do":"call","on":"进货入库","verb":"Save"}
{"do":"put","on":"进货入库","values":{"Auditor":"u2","Audittime":"$now"}}
{"do":"call","on":"进货入库","verb":"Audit","args":[true]}
{"do":"call","on":"进货订单","verb":"SavePurOrderLists","args":[{"rows":[{"PurOrderId":"$进货订单","PurInId":"$进货入库","OrderRownum":1,"PurRownum":1,"Goodsid":"G1","unit":"台","Qty":4}]}]}
{"do":"call","on":"进货订单","verb":"AddSaleOrderQty","args":[{"row":{"PurOrderId":"$进货订单","PurInId":"$进货入库","OrderRownum":1,"PurRownum":1,"Goodsid":"G1","unit":"台","Qty":4}}]}
{"do":"call","on":"进货订单","verb":"SetSaleClose","args":["$进货订单"]}
