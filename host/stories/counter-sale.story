柜台买卖：进货时当场付一部分款，再进一批价格变了，销货时当场收全款
@include company
@include stock-tables
@include trade-tables

= 进货：激光打印机 10 台，硒鼓 40 支，共 8000 元，当场付 3000 元
{"do":"new","as":"进货入库","class":"clsPurchaseInBill"}
{"do":"call","on":"进货入库","verb":"GetNewId","args":[""]}
{"do":"new","as":"付款单","class":"clsPayBill"}
{"do":"call","on":"付款单","verb":"GetNewId","args":[""]}
{"do":"put","on":"付款单","values":{"ID":"$付款单","Ccompany":"C1","Paidamount":3000,"Amount":3000,"Nowpay":true,"Creator":"u1","Createtime":"$now"}}
{"do":"add","on":"付款单","rows":"colRPBItems","row":{"BID":"$付款单","Rownum":1,"Amount":3000}}
{"do":"add","on":"付款单","rows":"colRPBRPItems","row":{"BID":"$付款单","Rownum":1,"Rpablebid":"$进货入库","Rpablebtype":2,"Amount":3000}}
{"do":"call","on":"付款单","verb":"Save"}
{"do":"put","on":"进货入库","values":{"ID":"$进货入库","Vendor":"C1","Nowpaybillid":"$付款单","Amount":8000,"Closeamount":8000,"Creator":"u1","Createtime":"$now"}}
{"do":"add","on":"进货入库","rows":"colBillItems","row":{"BillId":"$进货入库","Rownum":1,"Gid":"G1","Gname":"激光打印机","Class":"办公","Unit":"台","Qty":10,"Actualqty":10,"price":600,"Amount":6000,"Receiver":"W1"}}
{"do":"add","on":"进货入库","rows":"colBillItems","row":{"BillId":"$进货入库","Rownum":2,"Gid":"G2","Gname":"硒鼓","Class":"耗材","Unit":"支","Qty":40,"Actualqty":40,"price":50,"Amount":2000,"Receiver":"W1"}}
{"do":"call","on":"进货入库","verb":"Save"}
{"do":"put","on":"进货入库","values":{"Auditor":"u2","Audittime":"$now"}}
# True: the goods enter the stock, too.
{"do":"call","on":"进货入库","verb":"Audit","args":[true]}

= 再进打印机 5 台，每台 660 元，货款未付：平均成本随之变动
{"do":"new","as":"进货入库","class":"clsPurchaseInBill"}
{"do":"call","on":"进货入库","verb":"GetNewId","args":[""]}
{"do":"put","on":"进货入库","values":{"ID":"$进货入库","Vendor":"C1","Amount":3300,"Closeamount":3300,"Creator":"u1","Createtime":"$now"}}
{"do":"add","on":"进货入库","rows":"colBillItems","row":{"BillId":"$进货入库","Rownum":1,"Gid":"G1","Gname":"激光打印机","Class":"办公","Unit":"台","Qty":5,"Actualqty":5,"price":660,"Amount":3300,"Receiver":"W1"}}
{"do":"call","on":"进货入库","verb":"Save"}
{"do":"put","on":"进货入库","values":{"Auditor":"u2","Audittime":"$now"}}
{"do":"call","on":"进货入库","verb":"Audit","args":[true]}

= 销货：打印机 4 台，硒鼓 8 支，共 4120 元，当场收全款
{"do":"new","as":"销售出库","class":"clsSalesOutBill"}
{"do":"call","on":"销售出库","verb":"GetNewId","args":["","XSC"]}
{"do":"new","as":"收款单","class":"clsReceiptBill"}
{"do":"call","on":"收款单","verb":"GetNewId","args":[""]}
{"do":"put","on":"收款单","values":{"ID":"$收款单","Ccompany":"C2","Paidamount":4120,"Amount":4120,"Nowpay":true,"Creator":"u1","Createtime":"$now"}}
{"do":"add","on":"收款单","rows":"colRPBItems","row":{"BID":"$收款单","Rownum":1,"Amount":4120}}
{"do":"add","on":"收款单","rows":"colRPBRPItems","row":{"BID":"$收款单","Rownum":1,"Rpablebid":"$销售出库","Rpablebtype":5,"Amount":4120}}
{"do":"call","on":"收款单","verb":"Save"}
{"do":"put","on":"销售出库","values":{"ID":"$销售出库","ClientId":"C2","Nowpaybillid":"$收款单","Amount":4120,"Closeamount":4120,"Creator":"u1","Createtime":"$now"}}
{"do":"add","on":"销售出库","rows":"colBillItems","row":{"BillId":"$销售出库","Rownum":1,"Gid":"G1","Gname":"激光打印机","Class":"办公","Unit":"台","Qty":4,"Actualqty":4,"price":880,"Amount":3520,"Supplier":"W1"}}
{"do":"add","on":"销售出库","rows":"colBillItems","row":{"BillId":"$销售出库","Rownum":2,"Gid":"G2","Gname":"硒鼓","Class":"耗材","Unit":"支","Qty":8,"Actualqty":8,"price":75,"Amount":600,"Supplier":"W1"}}
{"do":"call","on":"销售出库","verb":"Save"}
{"do":"put","on":"销售出库","values":{"Auditor":"u2","Audittime":"$now"}}
# False: the sales issue asks it the other way round, and the goods leave the stock.
{"do":"call","on":"销售出库","verb":"Audit","args":[false]}
