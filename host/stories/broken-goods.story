坏件：仓库里发现两台坏打印机，调到维修间修好，再以修复品调回主仓库
@include company
{"do":"sql","text":"insert into Warehouse(id,WName) values('W2','维修间')"}
# The documents wait for their audit; what lies in the main warehouse before, one broken printer among it.
{"do":"sql","text":"insert into BasicConfig(keyname,keyvalue) values('启用进销审核','1')"}
{"do":"sql","text":"insert into BasicConfig(keyname,keyvalue) values('启用坏件审核','1')"}
{"do":"sql","text":"insert into BasicConfig(keyname,keyvalue) values('启用仓库业务审核','1')"}
{"do":"sql","text":"insert into Inventory(WID,GId,Model1,Model2,Status,Class,Unit,InQty,OutQty,CurrentQty,Remarks) values('W1','G1','','',0,'办公','台',10,0,10,'')"}
{"do":"sql","text":"insert into Inventory(WID,GId,Model1,Model2,Status,Class,Unit,InQty,OutQty,CurrentQty,Remarks) values('W1','G1','','',1,'办公','台',1,0,1,'')"}

@table 现存: 仓库 商品 状态 | >数量
select Warehouse.WName,goods.Gname,case Inventory.Status when 0 then '新品' when 1 then '坏件' else '修复品' end,
Inventory.CurrentQty from (Inventory left join Warehouse on Inventory.WID=Warehouse.id) left join goods on
Inventory.GId=goods.id order by Inventory.WID,Inventory.Status

= 新品 10 台里有 2 台是坏的：转为坏件
{"do":"new","as":"仓库报修出库","class":"clsWareHouseRepairBill"}
{"do":"call","on":"仓库报修出库","verb":"GetNewId","args":[""]}
{"do":"put","on":"仓库报修出库","values":{"ID":"$仓库报修出库","Creator":"u1","Createtime":"$now"}}
{"do":"add","on":"仓库报修出库","rows":"colBillItems","row":{"BillId":"$仓库报修出库","Rownum":1,"Gid":"G1","Gname":"激光打印机","Class":"办公","Unit":"台","Qty":2,"Receiver":"W1"}}
{"do":"call","on":"仓库报修出库","verb":"Save"}
{"do":"put","on":"仓库报修出库","values":{"Auditor":"u2","Audittime":"$now"}}
{"do":"call","on":"仓库报修出库","verb":"Audit"}

= 坏件调到维修间
{"do":"new","as":"坏件调拨","class":"clsBrokenAllocate"}
{"do":"call","on":"坏件调拨","verb":"GetNewId","args":[""]}
{"do":"put","on":"坏件调拨","values":{"ID":"$坏件调拨","Supplier":"W1","Receiver":"W2","Creator":"u1","Createtime":"$now"}}
{"do":"add","on":"坏件调拨","rows":"colBillItems","row":{"BillId":"$坏件调拨","Rownum":1,"Gid":"G1","Gname":"激光打印机","Class":"办公","Unit":"台","Qty":2}}
{"do":"call","on":"坏件调拨","verb":"Save"}
{"do":"put","on":"坏件调拨","values":{"Auditor":"u2","Audittime":"$now"}}
{"do":"call","on":"坏件调拨","verb":"UpdateAudited"}

= 在维修间修好：坏件转为修复品
{"do":"new","as":"仓库修复入库","class":"clsWareHouseRestoreBill"}
{"do":"call","on":"仓库修复入库","verb":"GetNewId","args":[""]}
{"do":"put","on":"仓库修复入库","values":{"ID":"$仓库修复入库","Creator":"u1","Createtime":"$now"}}
{"do":"add","on":"仓库修复入库","rows":"colBillItems","row":{"BillId":"$仓库修复入库","Rownum":1,"Gid":"G1","Gname":"激光打印机","Class":"办公","Unit":"台","Qty":2,"Receiver":"W2"}}
{"do":"call","on":"仓库修复入库","verb":"Save"}
{"do":"put","on":"仓库修复入库","values":{"Auditor":"u2","Audittime":"$now"}}
{"do":"call","on":"仓库修复入库","verb":"Audit"}

= 修复品调回主仓库
{"do":"new","as":"修复品调拨","class":"clsRestoreAllocate"}
{"do":"call","on":"修复品调拨","verb":"GetNewId","args":[""]}
{"do":"put","on":"修复品调拨","values":{"ID":"$修复品调拨","Supplier":"W2","Receiver":"W1","Creator":"u1","Createtime":"$now"}}
{"do":"add","on":"修复品调拨","rows":"colBillItems","row":{"BillId":"$修复品调拨","Rownum":1,"Gid":"G1","Gname":"激光打印机","Class":"办公","Unit":"台","Qty":2}}
{"do":"call","on":"修复品调拨","verb":"Save"}
{"do":"put","on":"修复品调拨","values":{"Auditor":"u2","Audittime":"$now"}}
{"do":"call","on":"修复品调拨","verb":"UpdateAudited"}
