-- 1 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bWarehouseCheck'
-- 2 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bWarehouseCheck'
-- 3 #1
SELECT distinct WareHouse.cWhCode as [<IA.FltField 仓库编码>] ,WareHouse.cWhName as [<IA.FltField 仓库名称>]  FROM WareHouse where isnull(bincost,0)<>0   AND  ((WareHouse.cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1) and WareHouse.cWhCode IN ('01','02')) or WareHouse.cWhCode is null) ORDER BY WareHouse.cWhCode
-- 4 #1
select cinvccode from inventory where cinvcode=N'A'
-- 5 #1
select cinvccode from inventory where cinvcode=N'B'
