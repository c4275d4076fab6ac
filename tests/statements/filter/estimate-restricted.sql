-- 1 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bWarehouseCheck'
-- 2 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bWarehouseCheck'
-- 3 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bDepartmentCheck'
-- 4 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bDepartmentCheck'
-- 5 #1
Select * FROM AccInformation where cSysID= N'AA' and cName= N'cSysVersion'
-- 6 #1
SELECT WareHouse.cWhCode as [<IA.FltField 仓库编码>] ,WareHouse.cWhName as [<IA.Field 仓库名称>]  FROM WareHouse where isnull(warehouse.bincost,0)<>0  AND  ((WareHouse.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1) and WareHouse.cWhCode IN ('01','02')) or WareHouse.cWhCode is null) ORDER BY WareHouse.cWhCode
-- 7 #1
SELECT Distinct Department.cDepCode as [<IA.Field 部门编码>],Department.cDepName as  [<IA.Field 部门名称>]  FROM WareHouse 
inner join Department ON Department.cDepCode = WareHouse.cDepCode
where isnull(warehouse.bincost,0)<>0  AND (WareHouse.cDepCode IN ('0401') or WareHouse.cDepCode is null) ORDER BY Department.cDepCode
