-- 1 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bWarehouseCheck'
-- 2 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bDepartmentCheck'
-- 3 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bInventoryCheck'
-- 4 #1
if exists(Select * from sysobjects where name= N'WtResult') Drop Table WtResult
-- 5 #1
CREATE TABLE WtResult (
单据日期 datetime NULL, 单据号 nvarchar (30), 记账日期 datetime NULL, 记账人 nvarchar (30),
凭证号 nvarchar(40) NULL, 凭证摘要 nvarchar (255),
业务类型 nvarchar (200), 业务号 nvarchar (40),
仓库编码 nvarchar (20), 仓库 nvarchar (120), 部门 nvarchar (255), 收发类别 nvarchar(12),
客户分类 nvarchar(24), 客户编码 nvarchar(40), 客户 nvarchar (196),
供应商分类 nvarchar (24), 供应商编码 nvarchar (40), 供应商 nvarchar(120),
经手人 nvarchar(20), 合同号 nvarchar(80),
生产订单号 nvarchar(30), 生产订单行号 nvarchar(30) NULL, 工序行号 nvarchar(60), 工作中心 nvarchar(20),
销售订单号 nvarchar(30), 销售订单行号 nvarchar(30) NULL,
出口订单号 nvarchar(50), 出口订单行号 nvarchar(50),
委外订单号 nvarchar(30), 采购订单号 nvarchar(60), 进口订单号 nvarchar(60),
项目大类 nvarchar(10), 项目大类名称 nvarchar(120), 项目编码 nvarchar(60), 项目名称 nvarchar(255),
存货分类 nvarchar(24), 存货编码 nvarchar(120),
存货名称 nvarchar(255), 存货代码 nvarchar(255), 规格型号 nvarchar(255),
批号 nvarchar(120), 生产批号 nvarchar(80),
主计量单位 nvarchar(60), 辅计量单位 nvarchar(60), 换算率 float NULL,
收入数量 float NULL, 收入单价 float NULL, 收入金额 money NULL,
发出数量 float NULL, 发出单价 float NULL, 发出金额 money NULL,
计划价 float NULL, 计划金额 float NULL, 借方差异 money NULL, 贷方差异 money NULL,
cdefine1 nvarchar(120), cdefine2 nvarchar(120), cdefine3 nvarchar(120), cdefine4 nvarchar(120), cdefine5 nvarchar(120), cdefine6 nvarchar(120), cdefine7 nvarchar(120), cdefine8 nvarchar(120), cdefine9 nvarchar(120), cdefine10 nvarchar(120), cdefine11 nvarchar(120), cdefine12 nvarchar(120), cdefine13 nvarchar(120), cdefine14 nvarchar(120), cdefine15 nvarchar(120), cdefine16 nvarchar(120), cdefine22 nvarchar(120), cdefine23 nvarchar(120), cdefine24 nvarchar(120), cdefine25 nvarchar(120), cdefine26 nvarchar(120), cdefine27 nvarchar(120), cdefine28 nvarchar(120), cdefine29 nvarchar(120), cdefine30 nvarchar(120), cdefine31 nvarchar(120), cdefine32 nvarchar(120), cdefine33 nvarchar(120), cdefine34 nvarchar(120), cdefine35 nvarchar(120), cdefine36 nvarchar(120), cdefine37 nvarchar(120), 
cinvdefine1 nvarchar(120), cinvdefine2 nvarchar(120), cinvdefine3 nvarchar(120), cinvdefine4 nvarchar(120), cinvdefine5 nvarchar(120), cinvdefine6 nvarchar(120), cinvdefine7 nvarchar(120), cinvdefine8 nvarchar(120), cinvdefine9 nvarchar(120), cinvdefine10 nvarchar(120), cinvdefine11 nvarchar(120), cinvdefine12 nvarchar(120), cinvdefine13 nvarchar(120), cinvdefine14 nvarchar(120), cinvdefine15 nvarchar(120), cinvdefine16 nvarchar(120), 
cfree1 nvarchar(20), cfree2 nvarchar(20), cfree3 nvarchar(20), cfree4 nvarchar(20), cfree5 nvarchar(20), cfree6 nvarchar(20), cfree7 nvarchar(20), cfree8 nvarchar(20), cfree9 nvarchar(20), cfree10 nvarchar(20), 
备注 nvarchar(255),
AutoID nvarchar(50) NULL, ID nvarchar(50) NULL, bRdFlag bit NOT NULL, cVouType nvarchar(4) NOT NULL,
cPzID nvarchar(30) null, cDemandCode nvarchar(30) null, cDemandMemo nvarchar(300) null,
imaterialfee money NULL, iProcessFee money NULL, costsource nvarchar(300) null)
-- 6 #1
ALTER TABLE WtResult ALTER  COLUMN cDefine4 datetime
-- 7 #1
ALTER TABLE WtResult ALTER  COLUMN cDefine5 int
-- 8 #1
ALTER TABLE WtResult ALTER  COLUMN cDefine6 datetime
-- 9 #1
ALTER TABLE WtResult ALTER  COLUMN cDefine7 float
-- 10 #1
ALTER TABLE WtResult ALTER  COLUMN cDefine26 float
-- 11 #1
ALTER TABLE WtResult ALTER  COLUMN cDefine27 float
-- 12 #1
ALTER TABLE WtResult ALTER  COLUMN cDefine15 int
-- 13 #1
ALTER TABLE WtResult ALTER  COLUMN cDefine16 float
-- 14 #1
ALTER TABLE WtResult ALTER  COLUMN cDefine34 int
-- 15 #1
ALTER TABLE WtResult ALTER  COLUMN cDefine35 int
-- 16 #1
ALTER TABLE WtResult ALTER  COLUMN cDefine36 datetime
-- 17 #1
ALTER TABLE WtResult ALTER  COLUMN cDefine37 datetime
-- 18 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'cValueStyle'
-- 19 #1
Select * FROM AccInformation where cSysID= N'AA' and cName= N'bCommitSell'
-- 20 #1
Select * FROM AccInformation where cSysID= N'SA' and cName= N'bFQSK'
-- 21 #1
Select * FROM AccInformation where cSysID= N'SA' and cName= N'bZYXS'
-- 22 #1
Select * FROM AccInformation where cSysID= N'EX' and cName= N'dEXFirstDate'
-- 23 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bSaleType'
-- 24 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'cExSaleAccType'
-- 25 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'cEnDispAccountStyle'
-- 26 #1
Update WtResult set 凭证号=gl_AccVouch.ino_id  from  WtResult Wt inner join gl_AccVouch on gl_AccVouch.coutNo_ID=Wt.cPzID
-- 27 #1
Delete WtResult Where (IsNull(凭证号,N'') <> N'' And N'' <> N'')
-- 28 #1
Update WtResult set 凭证号=gl_AccVouch.cSign + cast(gl_AccVouch.ino_id as nvarchar(30))  from  WtResult Wt inner join gl_AccVouch on gl_AccVouch.coutNo_ID=Wt.cPzID
-- 29 #1
Update WtResult set iProcessFee=Null,imaterialfee = Null Where IsNull(业务类型,N'') <> N'委外加工'
