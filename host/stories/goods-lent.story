借出商品：打印机借给学校试用，一半当场卖给对方，其余归还入库
@include company
{"do":"sql","text":"update goods set AverageCost=600 where id='G1'"}
{"do":"sql","text":"insert into Inventory(WID,GId,Model1,Model2,Status,Class,Unit,InQty,OutQty,CurrentQty,Remarks) values('W1','G1','','',0,'办公','台',10,0,10,'')"}
@include stock-tables
# A loan with what came back or changed hands of each row, and the returns.
@table 借还单据: 单号 行号 | 单据 往来单位 状态 商品 >数量 >已还或已转 结清
select GBorrowBill.Id,GBorrowItems.RowNum,case GBorrowBill.Type when 29 then '借出商品' else '借出返回' end,
ContactsCompany.FullName,case GBorrowBill.Status when 3 then '已审核' else '未审核' end,goods.Gname,GBorrowItems.Uqty,
GBorrowItems.ActualQty,case GBorrowBill.ClosedTag when 1 then '是' else '否' end
from ((GBorrowBill left join GBorrowItems on GBorrowBill.Id=GBorrowItems.BillId) left join goods on
GBorrowItems.GId=goods.id) left join ContactsCompany on
case GBorrowBill.Type when 29 then GBorrowBill.Receiver else GBorrowBill.Supplier end=ContactsCompany.id
order by GBorrowBill.Type,GBorrowBill.Id,GBorrowItems.RowNum

@table 销售出库: 单号 | 往来单位 状态 >应结 >成本
select StockBill.Id,ContactsCompany.FullName,case StockBill.Status when 3 then '已审核' else '未审核' end,
StockBill.CloseAmount,StockBill.BillCost from StockBill left join ContactsCompany on
StockBill.Receiver=ContactsCompany.id order by StockBill.Id

@table 借转销: 借出单号 销售单号 | 商品 >数量
select GBorrowList.BorrowId,GBorrowList.StcokId,goods.Gname,GBorrowList.Qty from GBorrowList left join goods on
GBorrowList.Goodsid=goods.id order by GBorrowList.StcokId

= 借出打印机 4 台给红星小学试用 14 天
{"do":"new","as":"借出商品","class":"clsBorrowOut"}
{"do":"call","on":"借出商品","verb":"GetNewId","args":[""]}
{"do":"put","on":"借出商品","values":{"ID":"$借出商品","Receiver":"C2","BorrowDays":14,"Amount":3520,"Creator":"u1","Createtime":"$now"}}
{"do":"add","on":"借出商品","rows":"colBillItems","row":{"BillId":"$借出商品","Rownum":1,"Gid":"G1","Gname":"激光打印机","Class":"办公","Unit":"台","Uqty":4,"price":880,"Amount":3520,"Supplier":"W1"}}
{"do":"call","on":"借出商品","verb":"Save"}
{"do":"put","on":"借出商品","values":{"Auditor":"u2","Audittime":"$now"}}
{"do":"call","on":"借出商品","verb":"Audit"}

= 学校买下其中 2 台：货已在对方手里，销售只记成本，不再出库
{"do":"new","as":"销售出库","class":"clsSalesOutBill"}
{"do":"call","on":"销售出库","verb":"GetNewId","args":["","XSC"]}
{"do":"put","on":"销售出库","values":{"ID":"$销售出库","ClientId":"C2","Amount":1760,"Closeamount":1760,"Referflag":1,"Referbillid":"$借出商品","Creator":"u1","Createtime":"$now"}}
{"do":"add","on":"销售出库","rows":"colBillItems","row":{"BillId":"$销售出库","Rownum":1,"Gid":"G1","Gname":"激光打印机","Class":"办公","Unit":"台","Qty":2,"Actualqty":2,"price":880,"Amount":1760,"Supplier":"W1"}}
{"do":"call","on":"销售出库","verb":"Save"}
{"do":"put","on":"销售出库","values":{"Auditor":"u2","Audittime":"$now"}}
# True: the goods have left the stock already.
{"do":"call","on":"销售出库","verb":"Audit","args":[true]}
{"do":"call","on":"借出商品","verb":"SaveBorrowOutPurLists","args":[{"rows":[{"BorrowId":"$借出商品","StcokId":"$销售出库","BorrowType":29,"StcokType":5,"BorrowRowNum":1,"StcokRowNum":1,"Goodsid":"G1","unit":"台","Qty":2}]}]}
{"do":"call","on":"借出商品","verb":"AddBorrowPurQty","args":[{"row":{"BorrowId":"$借出商品","StcokId":"$销售出库","BorrowRowNum":1,"StcokRowNum":1,"Goodsid":"G1","unit":"台","Qty":2}}]}

= 其余 2 台归还入库，借出单结清
{"do":"new","as":"借出返回","class":"clsBorrowOutReturn"}
{"do":"call","on":"借出返回","verb":"GetNewId","args":[""]}
{"do":"put","on":"借出返回","values":{"ID":"$借出返回","Supplier":"C2","Referflag":1,"Referbillid":"$借出商品","Creator":"u1","Createtime":"$now"}}
{"do":"add","on":"借出返回","rows":"colBillItems","row":{"BillId":"$借出返回","Rownum":1,"Gid":"G1","Gname":"激光打印机","Class":"办公","Unit":"台","Uqty":2,"price":880,"Amount":1760,"Supplier":"W1"}}
{"do":"call","on":"借出返回","verb":"Save"}
{"do":"put","on":"借出返回","values":{"Auditor":"u2","Audittime":"$now"}}
{"do":"call","on":"借出返回","verb":"Audit"}
{"do":"call","on":"借出返回","verb":"AddBorrowOutQty","args":[{"row":{"Rownum":1,"Gid":"G1","Uqty":2}},"$借出商品"]}
{"do":"call","on":"借出商品","verb":"SetBorrowOutClosedTag","args":["$借出商品"]}
