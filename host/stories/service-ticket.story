售后服务：学校的打印机卡纸，派工、上门、收费入账、回访，一张服务单走完四步
@include company

@table 售后服务单: 单号 | 客户 阶段 派工 处理结果 >实收 完结
select AfterServiceBill.BillId,ContactsCompany.FullName,
case ProcessFlag when 1 then '申请' when 2 then '预估' when 3 then '完工' else '回访' end,Executor,HandleResult,
PaidAmount,case IsFinished when 1 then '是' else '否' end
from AfterServiceBill left join ContactsCompany on AfterServiceBill.KeHuBH=ContactsCompany.id order by AfterServiceBill.BillId

@table 账户: 账户 | 开户行 >余额
select ZH,KHH,YE from ZHXX order by ID

@table 账户流水: 序号 | 账户 >金额 单号 摘要
select ZHJYXX.ID,ZHXX.ZH,ZHJYXX.JYJE,ZHJYXX.DYDJH,ZHJYXX.XM from ZHJYXX left join ZHXX on ZHJYXX.ZHID=ZHXX.ID
order by ZHJYXX.ID

{"do":"sql","text":"insert into ZHXX(ID,ZH,KHH,YE) values('A1','收款账户','工商银行',1000)"}

= 红星小学来电：打印机卡纸
{"do":"new","as":"售后服务单","class":"clsAfterServiceBillInfoOLD"}
{"do":"call","on":"售后服务单","verb":"GetNewId","args":[""]}
{"do":"put","on":"售后服务单","values":{"BillId":"$售后服务单","KeHuBH":"C2","Contactperson":"王老师","Repairobject":"激光打印机","Brokendsp":"卡纸","Creator":"u1","Createtime":"$now"}}
{"do":"call","on":"售后服务单","verb":"SaveRequest"}

= 预估要换搓纸轮，派小张上门
{"do":"put","on":"售后服务单","values":{"Executor":"小张","Solution":"换搓纸轮","PaiDanRen":"u2","PaiDanTime":"$now"}}
{"do":"call","on":"售后服务单","verb":"Forecast"}

= 修好了：工时 60 元，配件 20 元，当场收 80 元，记入账户
{"do":"put","on":"售后服务单","values":{"Servicefee":"60","Fittingsfee":"20","Paytype":"A1","Paidamount":80,"Handleresult":"已换搓纸轮","JieDanRen":"u2","JieDanTime":"$now"}}
{"do":"call","on":"售后服务单","verb":"Complete"}

= 回访：客户满意，服务单完结
{"do":"put","on":"售后服务单","values":{"Feedbackor":"王老师","Manyilevel":"满意","Score":"95","Isfinished":1,"FanKuiRen":"u2","FanKuiTime":"$now"}}
{"do":"call","on":"售后服务单","verb":"Feedback"}
