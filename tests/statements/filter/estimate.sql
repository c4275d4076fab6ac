-- 1 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bWarehouseCheck'
-- 2 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bDepartmentCheck'
-- 3 #1
Select * FROM AccInformation where cSysID= N'AA' and cName= N'cSysVersion'
-- 4 #1
SELECT WareHouse.cWhCode as [<IA.FltField 仓库编码>] ,WareHouse.cWhName as [<IA.Field 仓库名称>]  FROM WareHouse where isnull(warehouse.bincost,0)<>0  AND  ((WareHouse.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or WareHouse.cWhCode is null)  ORDER BY WareHouse.cWhCode
-- 5 #1
SELECT Distinct Department.cDepCode as [<IA.Field 部门编码>],Department.cDepName as  [<IA.Field 部门名称>]  FROM WareHouse 
inner join Department ON Department.cDepCode = WareHouse.cDepCode
where isnull(warehouse.bincost,0)<>0  ORDER BY Department.cDepCode
