盘点：打印机少了 1 台，硒鼓多了 2 支，报损报溢之后账实相符，报损又撤销
@include company
@include stock-tables

@table 盘点单据: 单号 | 单据 状态 >成本
select Id,case Type when 8 then '报溢入库' else '报损出库' end,case Status when 3 then '已审核' else '未审核' end,BillCost
from StockBill where Type in (8,9) order by Type,Id

# What the books say before the count.
{"do":"sql","text":"insert into Inventory(WID,GId,Model1,Model2,Status,Class,Unit,InQty,OutQty,CurrentQty,Remarks) values('W1','G1','','',0,'办公','台',10,0,10,'')"}
{"do":"sql","text":"insert into Inventory(WID,GId,Model1,Model2,Status,Class,Unit,InQty,OutQty,CurrentQty,Remarks) values('W1','G2','','',0,'耗材','支',40,0,40,'')"}

= 账上打印机 10 台、硒鼓 40 支；硒鼓实有 42 支
{"do":"new","as":"报溢入库","class":"clsReportOfOverflowBill"}
{"do":"call","on":"报溢入库","verb":"GetNewId","args":[""]}
{"do":"put","on":"报溢入库","values":{"ID":"$报溢入库","Creator":"u1","Createtime":"$now","Auditor":"u2","Audittime":"$now"}}
{"do":"add","on":"报溢入库","rows":"colBillItems","row":{"BillId":"$报溢入库","Rownum":1,"Gid":"G2","Class":"耗材","Unit":"支","Qty":2,"price":50,"Receiver":"W1"}}
{"do":"call","on":"报溢入库","verb":"Save"}
{"do":"call","on":"报溢入库","verb":"UpdateAudited"}

= 打印机实有 9 台
{"do":"new","as":"报损出库","class":"clsReportOfLossesBill"}
{"do":"call","on":"报损出库","verb":"GetNewId","args":[""]}
{"do":"put","on":"报损出库","values":{"ID":"$报损出库","Creator":"u1","Createtime":"$now","Auditor":"u2","Audittime":"$now"}}
{"do":"add","on":"报损出库","rows":"colBillItems","row":{"BillId":"$报损出库","Rownum":1,"Gid":"G1","Class":"办公","Unit":"台","Qty":1,"price":600,"Supplier":"W1"}}
{"do":"call","on":"报损出库","verb":"Save"}
{"do":"call","on":"报损出库","verb":"UpdateAudited"}

= 打印机在展厅找到了：撤销报损
{"do":"call","on":"报损出库","verb":"CancelAudited"}
