-- 1 #1
select iyear,iid 
from vossystem..ua_period
Inner Join AccInformation ON (vossystem..ua_period.iYear > Year(AccInformation.cValue) OR (vossystem..ua_period.iYear = Year(AccInformation.cValue) And vossystem..ua_period.iId >= Month(AccInformation.cValue)))
And ((select top 1 cValue from accinformation where csysid = N'aa' and cName = N'ArchiveDate') Is Null
    Or VosSystem..UA_Period.iYear > (Select top 1 iYear From VosSystem..UA_Period Where cacc_id =N'001' And (select top 1 cValue from accinformation where csysid = N'aa' and cName = N'ArchiveDate') Between dBegin And dEnd))
And AccInformation.cSysID = 'IA' And cName = 'dIAStartDate'
where cacc_id =N'001' And iYear < 9999 AND bIsDelete = 0
order by iyear,iid
-- 2 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bDepartmentCheck'
-- 3 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bDepartmentCheck'
-- 4 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bWarehouseCheck'
-- 5 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bWarehouseCheck'
-- 6 #1
Select * FROM AccInformation where cSysID= N'AA' and cName= N'cSysVersion'
-- 7 #1
SELECT Distinct Department.cDepCode as [<IA.FltField 部门编码>],Department.cDepName as [<IA.FltField 部门名称>] FROM WareHouse  inner join Department ON Department.cDepCode = WareHouse.cDepCode where isnull(warehouse.bincost,0)<>0  AND (WareHouse.cDepCode IN ('0401') or WareHouse.cDepCode is null) ORDER BY Department.cDepCode
-- 8 #1
SELECT distinct WareHouse.cWhCode as [<IA.FltField 仓库编码>],WareHouse.cWhName as [<IA.FltField 仓库名称>] FROM WareHouse where isnull(warehouse.bincost,0)<>0   AND  ((WareHouse.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1) and WareHouse.cWhCode IN ('01','02')) or WareHouse.cWhCode is null) ORDER BY WareHouse.cWhCode
-- 9 #1
select cVouchType as [<IA.FltField 单据编码>] ,EnumName  As [<IA.FltField 单据类型>] from VouchType inner join aa_enum on cVouchName=EnumCode where LocaleID='zh-CN' and EnumType='IA.BillforVch'  and cvouchtype in ('05','06','08','09','10','11','20','21','22','25','24','26','27','28','29','32','35','EX26','EX27') Union select '01','<IA.BillforVch 采购入库单(报销记账)>'  Union select '011','<IA.BillforVch 采购入库单(暂估记账)>'  Union select '30','<IA.BillforVch 蓝字回冲单(报销)>'  Union select '301','<IA.BillforVch 蓝字回冲单(暂估)>'  Union select '70','<IA.BillforVch 代管挂账确认单(报销记账)>'  Union select '701','<IA.BillforVch 代管挂账确认单(暂估记账)>' Order By [<IA.FltField 单据编码>]
