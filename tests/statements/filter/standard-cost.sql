-- 1 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bWarehouseCheck'
-- 2 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bDepartmentCheck'
-- 3 #1
Select * FROM AccInformation where cSysID= N'AA' and cName= N'cSysVersion'
-- 4 #1
SELECT distinct WareHouse.cWhCode as [<IA.FltField 仓库编码>],WareHouse.cWhName as [<IA.FltField 仓库名称>] FROM WareHouse where isnull(warehouse.bincost,0)<>0   AND  ((WareHouse.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or WareHouse.cWhCode is null)  ORDER BY WareHouse.cWhCode
-- 5 #1
SELECT Distinct Department.cDepCode as [<IA.FltField 部门编码>],Department.cDepName as [<IA.FltField 部门名称>] FROM WareHouse  inner join Department ON Department.cDepCode = WareHouse.cDepCode where isnull(warehouse.bincost,0)<>0  and  WareHouse.cWhCode='01'  ORDER BY Department.cDepCode
-- 6 #1
select cVouchType as [<IA.FltField 单据编码>] ,EnumName  As [<IA.FltField 单据类型>] from VouchType inner join aa_enum on cVouchName=EnumCode where LocaleID='zh-CN' and EnumType='IA.BillforVch'  and cvouchtype in ('05','06','08','09','20','21','22','24','25','26','27','28','29','32','EX26','EX27') Union select '01','<IA.BillforVch 采购入库单(报销记账)>'  Union select '011','<IA.BillforVch 采购入库单(暂估记账)>'  Union select '30','<IA.BillforVch 蓝字回冲单(报销)>'  Union select '301','<IA.BillforVch 蓝字回冲单(暂估)>'  Union select '70','<IA.BillforVch 代管挂账确认单(报销记账)>'  Union select '701','<IA.BillforVch 代管挂账确认单(暂估记账)>' Order By [<IA.FltField 单据编码>]
-- 7 #1
Select * FROM AccInformation where cSysID= N'CA' and cName= N'iCyFtMethod'
