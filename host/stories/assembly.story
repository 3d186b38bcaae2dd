组装：配件拼成电脑，配件出库，电脑按配件的成本入库，成为平均成本
@include company
{"do":"sql","text":"insert into goods(id,Gname,Class,Model1,Model2,Enabled,Unit) values('G3','台式电脑','电脑','','',1,'台')"}
{"do":"sql","text":"insert into GoodsUnit(id,Unit,UnitConverter) values('G3','台',1)"}
# What is in stock before, at the average cost of each.
{"do":"sql","text":"insert into goods(id,Gname,Class,Model1,Model2,Enabled,Unit,AverageCost) values('P1','机箱','配件','','',1,'个',180)"}
{"do":"sql","text":"insert into goods(id,Gname,Class,Model1,Model2,Enabled,Unit,AverageCost) values('P2','主板','配件','','',1,'块',920)"}
{"do":"sql","text":"insert into goods(id,Gname,Class,Model1,Model2,Enabled,Unit,AverageCost) values('P3','内存条','配件','','',1,'条',150)"}
{"do":"sql","text":"insert into Inventory(WID,GId,Model1,Model2,Status,Class,Unit,InQty,OutQty,CurrentQty,Remarks) values('W1','P1','','',0,'配件','个',5,0,5,'')"}
{"do":"sql","text":"insert into Inventory(WID,GId,Model1,Model2,Status,Class,Unit,InQty,OutQty,CurrentQty,Remarks) values('W1','P2','','',0,'配件','块',5,0,5,'')"}
{"do":"sql","text":"insert into Inventory(WID,GId,Model1,Model2,Status,Class,Unit,InQty,OutQty,CurrentQty,Remarks) values('W1','P3','','',0,'配件','条',12,0,12,'')"}
@include stock-tables

@table 组装单: 单号 | 状态 成品 >数量 >单价 >金额
select GoodsBill.Id,case GoodsBill.Status when 3 then '已审核' else '未审核' end,GoodsBill.Gname,GoodsBill.Actualqty,
GoodsBill.Price,GoodsBill.Amount from GoodsBill order by GoodsBill.Id

= 机箱 1 个 180 元、主板 1 块 920 元、内存条 2 条各 150 元，合成电脑 1 台 1400 元：组装 2 台
{"do":"new","as":"组装单","class":"clsGoodsAssembled"}
{"do":"call","on":"组装单","verb":"GetNewId","args":[""]}
{"do":"put","on":"组装单","values":{"ID":"$组装单","Gid":"G3","Gname":"台式电脑","Class":"电脑","Unit":"台","Actualqty":2,"price":1400,"Amount":2800,"WareHouseID":"W1","Creator":"u1","Createtime":"$now"}}
{"do":"add","on":"组装单","rows":"colBillItems","row":{"BillId":"$组装单","RowNum":1,"GId":"P1","GName":"机箱","Class":"配件","unit":"个","ActualQty":2,"price":180,"Amount":360,"WareHouseId":"W1"}}
{"do":"add","on":"组装单","rows":"colBillItems","row":{"BillId":"$组装单","RowNum":2,"GId":"P2","GName":"主板","Class":"配件","unit":"块","ActualQty":2,"price":920,"Amount":1840,"WareHouseId":"W1"}}
{"do":"add","on":"组装单","rows":"colBillItems","row":{"BillId":"$组装单","RowNum":3,"GId":"P3","GName":"内存条","Class":"配件","unit":"条","ActualQty":4,"price":150,"Amount":600,"WareHouseId":"W1"}}
{"do":"call","on":"组装单","verb":"Save"}
{"do":"put","on":"组装单","values":{"Auditor":"u2","Audittime":"$now"}}
{"do":"call","on":"组装单","verb":"Audit"}

= 主板涨价：进货 3 块，每块 1040 元，主板的平均成本变为 980 元
{"do":"new","as":"进货入库","class":"clsPurchaseInBill"}
{"do":"call","on":"进货入库","verb":"GetNewId","args":[""]}
{"do":"put","on":"进货入库","values":{"ID":"$进货入库","Vendor":"C1","Amount":3120,"Closeamount":3120,"Creator":"u1","Createtime":"$now"}}
{"do":"add","on":"进货入库","rows":"colBillItems","row":{"BillId":"$进货入库","Rownum":1,"Gid":"P2","Gname":"主板","Class":"配件","Unit":"块","Qty":3,"Actualqty":3,"price":1040,"Amount":3120,"Receiver":"W1"}}
{"do":"call","on":"进货入库","verb":"Save"}
{"do":"put","on":"进货入库","values":{"Auditor":"u2","Audittime":"$now"}}
{"do":"call","on":"进货入库","verb":"Audit","args":[true]}

= 再组装 1 台，配件成本 1460 元：电脑的平均成本随之变动
{"do":"new","as":"组装单","class":"clsGoodsAssembled"}
{"do":"call","on":"组装单","verb":"GetNewId","args":[""]}
{"do":"put","on":"组装单","values":{"ID":"$组装单","Gid":"G3","Gname":"台式电脑","Class":"电脑","Unit":"台","Actualqty":1,"price":1460,"Amount":1460,"WareHouseID":"W1","Creator":"u1","Createtime":"$now"}}
{"do":"add","on":"组装单","rows":"colBillItems","row":{"BillId":"$组装单","RowNum":1,"GId":"P1","GName":"机箱","Class":"配件","unit":"个","ActualQty":1,"price":180,"Amount":180,"WareHouseId":"W1"}}
{"do":"add","on":"组装单","rows":"colBillItems","row":{"BillId":"$组装单","RowNum":2,"GId":"P2","GName":"主板","Class":"配件","unit":"块","ActualQty":1,"price":980,"Amount":980,"WareHouseId":"W1"}}
{"do":"add","on":"组装单","rows":"colBillItems","row":{"BillId":"$组装单","RowNum":3,"GId":"P3","GName":"内存条","Class":"配件","unit":"条","ActualQty":2,"price":150,"Amount":300,"WareHouseId":"W1"}}
{"do":"call","on":"组装单","verb":"Save"}
{"do":"put","on":"组装单","values":{"Auditor":"u2","Audittime":"$now"}}
{"do":"call","on":"组装单","verb":"Audit"}
