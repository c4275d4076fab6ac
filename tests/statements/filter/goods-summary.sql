-- 1 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bsaletype'
-- 2 #1
Select top 1 cInvStd from Inventory where cInvStd= N'M6'
-- 3 #1
Select top 1 cInvStd from Inventory where cInvStd= N'M8'
-- 4 #1
Select top 1 cComunitCode from ComputationUnit where cComunitCode= N'KG'
