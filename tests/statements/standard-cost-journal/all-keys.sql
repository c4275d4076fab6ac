-- 1 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bWarehouseCheck'
-- 2 #1
Select * FROM AccInformation where cSysID= N'IA' and cName= N'bDepartmentCheck'
-- 3 #1
if exists(Select * from sysobjects where name= N'CostResult') Drop Table CostResult
-- 4 #1
Select * FROM AccInformation where cSysID= N'ia' and cName= N'dIAFirstDate'
-- 5 #1
select  dvoudate, cvoucode, dkeepdate, caccounter, cbuscode, strcontractcode, cproordercode, iproorderids, cworkprocodedis, cworkcentername, cprocode, csaleordercode, isaleorderids, exocode, iexrowno, centrustordercode, cpurordercode, cimordercode, cdemandcode, cdemandmemo, citem_class, citemcname, citemcode, cname, cpzid, ipzcode, cpzdigest, cbustype,
 cwhcode, cwhname, ccccode, cCusCode, ccusabbname, cvccode, cvencode, cvenname, cdepcode, cdepname, chandler,
 cdefine1, cdefine2, cdefine3, cdefine4, cdefine5, cdefine6, cdefine7, cdefine8, cdefine9, cdefine10, cdefine11, cdefine12, cdefine13, cdefine14, cdefine15, cdefine16, cdefine22, cdefine23, cdefine24, cdefine25, cdefine26, cdefine27, cdefine28, cdefine29, cdefine30, cdefine31, cdefine32, cdefine33, cdefine35, cdefine36, cdefine37,
 cinvccode, cinvcode, cinvname, cinvaddcode, cfree1, cfree2, cfree3, cfree4, cfree5, cfree6, cfree7, cfree8, cfree9, cfree10, ccomunitname, cinvstd, cinvdefine1, cinvdefine2, cinvdefine3, cinvdefine4, cinvdefine5, cinvdefine6, cinvdefine7, cinvdefine8, cinvdefine9, cinvdefine10, cinvdefine11, cinvdefine12, cinvdefine14, cinvdefine15, cinvdefine16,
 crdcode, cmemo,
 iinquantity, istdincost, istdinprice, iindifcost, iindif, iincost, iinprice, istdininvcost, istdininvprice, iininvquandifcost, iininvquandif, iininvpricedifcost, iininvpricedif, iininvcost, iininvprice, iStdInLbrCost, istdinlbrprice, iinlbrquandifcost, iinlbrquandif, iinlbrpricedifcost, iinlbrpricedif, iinsemilbrdifcost, iinsemilbrdif, iinlbrcost, iinlbrprice, istdinmanufixcost, istdinmanufixprice, iinmanufixquandifcost, iinmanufixquandif, iinmanufixpricedifcost, iinmanufixpricedif, iinsemimanufixdifcost, iinsemimanufixdif, iinmanufixcost, iinmanufixprice, istdinmanuvarcost, istdinmanuvarprice, iinmanuvarquandifcost, iinmanuvarquandif, iinmanuvarpricedifcost, iinmanuvarpricedif, iinsemimanuvardifcost, iinsemimanuvardif, iinmanuvarcost, iinmanuvarprice, istdinomcost, istdinomprice, iinomdifcost, iinomdif, iinsemiomdifcost, iinsemiomdif,
 ioutquantity, istdoutcost, istdoutprice, ioutdifcost, ioutdif, ioutcost, ioutprice, istdoutinvcost, istdoutinvprice, ioutinvquandifcost, ioutinvquandif, ioutinvpricedifcost, ioutinvpricedif, ioutinvcost, ioutinvprice, iStdOutLbrCost, istdoutlbrprice, ioutlbrquandifcost, ioutlbrquandif, ioutlbrpricedifcost, ioutlbrpricedif, ioutsemilbrdifcost, ioutsemilbrdif, ioutlbrcost, ioutlbrprice, istdoutmanufixcost, istdoutmanufixprice, ioutmanufixquandifcost, ioutmanufixquandif, ioutmanufixpricedifcost, ioutmanufixpricedif, ioutsemimanufixdifcost, ioutsemimanufixdif, ioutmanufixcost, ioutmanufixprice, istdoutmanuvarcost, istdoutmanuvarprice, ioutmanuvarquandifcost, ioutmanuvarquandif, ioutmanuvarpricedifcost, ioutmanuvarpricedif, ioutsemimanuvardifcost, ioutsemimanuvardif, ioutmanuvarcost, ioutmanuvarprice, istdoutomcost, istdoutomprice, ioutomdifcost, ioutomdif, ioutsemiomdifcost, ioutsemiomdif,
 fInvStdCostCode, fInvStdCostName, fLaborStdCostCode, fLaborStdCostName, fManuFixCostCode, fManuFixCostName, fManuVarCostCode, fManuVarCostName, fOmCostCode, fOmCostName,
 cDifPZid, ipzcode As iDifPZid,
 fInvPriceDifCode, fInvPriceDifName, fInvQuanDifCode, fInvQuanDifName, fLbrPriceDifCode, fLbrPriceDifName, fLbrQuanDifCode, fLbrQuanDifName, fSemiLbrQuanDifCode, fSemiLbrQuanDifName, fManuFixPriceDifCode, fManuFixPriceDifName, fManuFixQuanDifCode, fManuFixQuanDifName, fSemiManuFixQuanDifCode, fSemiManuFixQuanDifName, fManuVarPriceDifCode, fManuVarPriceDifName, fManuVarQuanDifCode, fManuVarQuanDifName, fSemiManuVarQuanDifCode, fSemiManuVarQuanDifName, fOmCostDifCode, fOmCostDifName, fSemiOmQuanDifCode, fSemiOmQuanDifName
 into CostResult from  V_IA_CostacCount  where   cVouType not in (N'33',N'34',N'35') and  ((cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or cWhCode is null)  And   dVouDate>= '2008-01-01' And   dVouDate<= '2008-03-31' And   dKeepDate>= '2008-01-01' And   dKeepDate<= '2008-03-31' And   cInvCCode Like N'01%' And CcCusCode>= N'K1' And CcCusCode<= N'K2' And cInvCode in ('A','B') And   cWhCode in ('01','02') And cRdCode= N'1' And cInvDefine1= N'x' And   dKeepDate>='2008-01-01' And (  (cVouType in ('01','011','32','3201') OR  (cVouType='30' and bFlag<>1) )) And (  cBusType in (N'code of 普通采购'))
-- 6 #1
 update CostResult set ipzcode=gl_AccVouch.csign + ' ' + Cast(gl_AccVouch.ino_id As nvarchar(10)) from   CostResult a 
  inner join gl_AccVouch on a.cPzID=gl_AccVouch.coutno_id 
-- 7 #1
 update CostResult set iDifPZid=gl_AccVouch.csign + ' ' + Cast(gl_AccVouch.ino_id As nvarchar(10)) from   CostResult a 
  inner join gl_AccVouch on a.cDifPZid=gl_AccVouch.coutno_id 
