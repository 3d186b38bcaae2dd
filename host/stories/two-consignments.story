物流发货：一张销售单分两批发出，运费付给承运公司，第二批又撤回
@include company

@table 发货单: 单号 | 承运公司 >运费 状态
select SendGoodsBill.Id,ContactsCompany.FullName,Logisticfare,case Status when 1 then '草稿' else '已保存' end
from SendGoodsBill left join ContactsCompany on SendGoodsBill.Logisticcompany=ContactsCompany.id order by SendGoodsBill.Id

@table 发货商品: 发货单 商品 | >数量 来源单
select SendGoodsBillItems.Billid,goods.Gname,SendGoodsBillItems.Qty,SendGoodsBillItems.Bid
from SendGoodsBillItems left join goods on SendGoodsBillItems.Gid=goods.id order by SendGoodsBillItems.Billid

@table 销售出库: 单号 | 已发货
select Id,case FHBJ when 1 then '是' else '否' end from StockBill where Type=5 order by Id

@table 账户: 账户 | >余额
select ZH,YE from ZHXX order by ID

@table 物流结算单: 单号 | 承运公司 状态 >应付 >实付
select SendGoodsVouchersbill.Id,ContactsCompany.FullName,case Status when 3 then '已审核' else '未审核' end,Amount,Paidamount
from SendGoodsVouchersbill left join ContactsCompany on SendGoodsVouchersbill.Ccompany=ContactsCompany.id
order by SendGoodsVouchersbill.Id

# The sale that is to be shipped, the carrier, and an account that the freight is paid from.
{"do":"sql","text":"insert into ContactsCompany(id,FullName) values('C9','顺路物流')"}
{"do":"sql","text":"insert into ZHXX(ID,ZH,KHH,YE) values('A1','付款账户','工商银行',1000)"}
{"do":"sql","text":"insert into StockBill(Id,Type,Status,Receiver,CloseAmount,Amount,FHBJ) values('XSC24030400001',5,3,'C2',4400,4400,1)"}
{"do":"sql","text":"insert into StockBillItems(BillId,RowNum,GId,unit,qty,SendStutas) values('XSC24030400001',1,'G1','台',5,1)"}

= 五台打印机，先发 3 台，运费 60 元
{"do":"new","as":"第一批","class":"clsSendGoodsBill"}
{"do":"call","on":"第一批","verb":"GetNewId","args":[""]}
{"do":"put","on":"第一批","values":{"ID":"$第一批","Receiveunit":"红星小学","Sendgoodstel":"8811","Logisticcompany":"C9","Logisticfare":60,"YFZFZH":"A1","Status":2,"Operater":"u1","Operatedate":"$now"}}
{"do":"add","on":"第一批","rows":"colBillItems","row":{"Billid":"$第一批","Rownum":1,"Gid":"G1","Unit":"台","Qty":3,"Bid":"XSC24030400001","BType":5}}
{"do":"add","on":"第一批","rows":"colSendBillItems","row":{"Billid":"$第一批","Bid":"XSC24030400001","DYType":5}}
{"do":"call","on":"第一批","verb":"Save"}

= 再发 2 台，运费 45 元，从账户付出
{"do":"new","as":"第二批","class":"clsSendGoodsBill"}
{"do":"call","on":"第二批","verb":"GetNewId","args":[""]}
{"do":"put","on":"第二批","values":{"ID":"$第二批","Receiveunit":"红星小学","Sendgoodstel":"8822","Logisticcompany":"C9","Logisticfare":45,"YFZFZH":"A1","Status":2,"Operater":"u1","Operatedate":"$now"}}
{"do":"add","on":"第二批","rows":"colBillItems","row":{"Billid":"$第二批","Rownum":1,"Gid":"G1","Unit":"台","Qty":2,"Bid":"XSC24030400001","BType":5}}
{"do":"add","on":"第二批","rows":"colSendBillItems","row":{"Billid":"$第二批","Bid":"XSC24030400001","DYType":5}}
{"do":"call","on":"第二批","verb":"Save"}
{"do":"proc","name":"CreateZHJYXX_LX","args":["$第二批",45,"A1","u1",-1,19,"运费",false,"",""]}

= 与承运公司结算两批运费，共 105 元
{"do":"new","as":"物流结算单","class":"clsSendGoodsVouchersbill"}
{"do":"call","on":"物流结算单","verb":"GetNewId","args":[""]}
{"do":"put","on":"物流结算单","values":{"ID":"$物流结算单","Ccompany":"C9","Amount":105,"Paidamount":105,"Creator":"u1","Createtime":"$now"}}
{"do":"add","on":"物流结算单","rows":"colSGVItems","row":{"Rpablebid":"$第一批","Amount":60,"Paidamount":60,"Ccompany":"C9"}}
{"do":"add","on":"物流结算单","rows":"colSGVItems","row":{"Rpablebid":"$第二批","Amount":45,"Paidamount":45,"Ccompany":"C9"}}
{"do":"call","on":"物流结算单","verb":"Save"}
{"do":"call","on":"物流结算单","verb":"Audite","args":["u2","$now"]}

= 第二批撤回：退成草稿，付出的 45 元回到账户；再删除，销售单去掉已发货标记
{"do":"call","on":"第二批","verb":"SaveAsDraft","args":[1]}
{"do":"call","on":"第二批","verb":"Delete"}
