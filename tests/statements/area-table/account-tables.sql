-- 1 #1
select inv.cinvcode
,ia.cfree1,ia.cfree2,ia.cfree3,ia.cfree4,ia.cfree5,ia.cfree6,ia.cfree7,ia.cfree8,ia.cfree9,ia.cfree10
,ia.cbatchia
,wh.cwhcode,wh.cwhname
,inv.cInvStd,inv.cInvAddCode,inv.cinvname
,case when ia.brdflag=1 then isnull(ia.iquantity,0) else 0 end as iinquantity
,case when ia.brdflag=0 then isnull(ia.iquantity,0) else 0 end as ioutquantity
,case when ia.brdflag=1 then isnull(ia.iprice,0) else 0 end as iinprice
,case when ia.brdflag=0 then isnull(ia.iprice,0) else 0 end as ioutprice
,case when ia.brdflag=0 then isnull(ia.iunitcost,0) else 0 end as ioutcost
,case when ia.brdflag=1 then isnull(ia.iunitcost,0) else 0 end as iincost into tempdb..result
 from ia_data_subsidiary ia inner join (select distinct autoid from ia_accountarea) area on ia.autoid=area.autoid  inner join inventory inv on inv.cinvcode=ia.cinvcode left join warehouse wh on wh.cwhcode=ia.cwhcode 
