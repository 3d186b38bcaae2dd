期初库存：开账时按商品类别分批录入一张单，一批录错了重录，不影响别的类
@include company
@include stock-tables

@table 期初入库: 单号 行号 | 类别 商品 >数量 >单价 >金额
select StockBill.Id,StockBillItems.RowNum,StockBillItems.Class,StockBillItems.GName,StockBillItems.qty,
StockBillItems.price,StockBillItems.Amount from StockBill left join StockBillItems on
StockBill.Id=StockBillItems.BillId order by StockBill.Id,StockBillItems.RowNum

= 办公类：激光打印机 6 台
{"do":"new","as":"期初入库","class":"clsInitInBill"}
{"do":"call","on":"期初入库","verb":"GetNewId","args":[""]}
{"do":"put","on":"期初入库","values":{"ID":"$期初入库","Receiver":"W1","Creator":"u1","Createtime":"$now","Auditor":"u2","Audittime":"$now"}}
{"do":"add","on":"期初入库","rows":"colBillItems","row":{"BillId":"$期初入库","Rownum":1,"Gid":"G1","Gname":"激光打印机","Class":"办公","Unit":"台","Qty":6,"price":600,"Amount":3600,"Receiver":"W1"}}
# The class of the goods is the slice that the save replaces; 0: whatever flag the goods have.
{"do":"call","on":"期初入库","verb":"Save","args":["办公",0,0]}

= 耗材类：硒鼓 30 支，办公类留在原处
{"do":"clear","on":"期初入库","rows":"colBillItems"}
{"do":"add","on":"期初入库","rows":"colBillItems","row":{"BillId":"$期初入库","Rownum":2,"Gid":"G2","Gname":"硒鼓","Class":"耗材","Unit":"支","Qty":30,"price":50,"Amount":1500,"Receiver":"W1"}}
{"do":"call","on":"期初入库","verb":"Save","args":["耗材",0,0]}

= 打印机数错了，实有 5 台：重录办公类，库存随之改正
{"do":"clear","on":"期初入库","rows":"colBillItems"}
{"do":"add","on":"期初入库","rows":"colBillItems","row":{"BillId":"$期初入库","Rownum":1,"Gid":"G1","Gname":"激光打印机","Class":"办公","Unit":"台","Qty":5,"price":600,"Amount":3000,"Receiver":"W1"}}
{"do":"call","on":"期初入库","verb":"Save","args":["办公",0,0]}
