#include "demo/SchemaAccount.h"

#include "demo/ObjectCatalogue.h"
#include "frame/Text.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kavelin::demo {
namespace {

using Lines = std::vector<std::string>;

// One document of every kind and type, number N with the lines N1 (unposted) and N2 (posted). Document 9 is a
// direct sale, 12 a direct purchase: they have no warehouse.
struct Document {
    int id;
    const char *kind, *type, *business, *source;
    bool receipt;
    bool direct = false;
};

constexpr Document kDocuments[] = {
    {1, "RD", "01", "普通采购", nullptr, true},
    {2, "RD", "08", "其他入库", nullptr, true},
    {3, "RD", "09", "其他出库", nullptr, false},
    {4, "RD", "10", "成品入库", nullptr, true},
    {5, "RD", "11", "领料", nullptr, false},
    {6, "RD", "32", "普通销售", "发货单", false},
    {7, "DISP", "05", "普通销售", nullptr, false},
    {8, "SALE", "26", "普通销售", nullptr, false},
    {9, "SALE", "27", "直运销售", nullptr, false, true},
    {10, "EXCON", "", "出口发票", nullptr, false},
    {11, "EXINV", "EX26", "出口发票", nullptr, false},
    {12, "PUR", "01", "直运采购", nullptr, true, true},
    {13, "JUST", "20", "差异调整", nullptr, true},
    {14, "VMI", "70", "普通采购", nullptr, true},
};

std::string Quoted(const char* text)
{
    return text == nullptr ? "null" : "N'" + std::string(text) + "'";
}

void AddMasterData(SchemaAccount& account)
{
    account.Execute(
        "insert into InventoryClass values (N'01', N'原料')\r\n"
        "insert into Inventory (cInvCode, cInvCCode, cInvName, cInvStd, iid, cComUnitCode, cValueType, cInvDefine2) "
        "values (N'A1', N'01', N'螺丝', N'M4', N'A1', N'U1', N'先进先出法', N'蓝')\r\n"
        "insert into ComputationUnit values (N'U1', N'个', N'G1', 1, 1, 1)\r\n"
        "insert into Warehouse values (N'W1', N'原料库', N'D1', 1, N'移动平均法')\r\n"
        "insert into Department values (N'D1', N'采购部')\r\n"
        "insert into Department values (N'D2', N'财务部')\r\n"
        "insert into Rd_Style values (N'101', N'采购入库')\r\n"
        "insert into CustomerClass values (N'K', N'国内')\r\n"
        "insert into Customer values (N'C1', N'东方公司', N'东方', N'K')\r\n"
        "insert into VendorClass values (N'L', N'本地')\r\n"
        "insert into Vendor values (N'V1', N'西方工厂', N'L')");
}

void AddDocument(SchemaAccount& account, const Document& document)
{
    const std::string id = std::to_string(document.id);
    const std::string warehouse = document.direct ? "null" : "N'W1'";
    account.Execute(
        "insert into Demo_Document (DocID, Kind, cVouType, cVouCode, dVouDate, cBusType, cSource, cSTCode, cWhCode, "
        "cDepCode, cAccDep, cRdCode, cCusCode, cVenCode, cDefine4) values (" +
        id + ", " + Quoted(document.kind) + ", " + Quoted(document.type) + ", N'No" + id +
        "', '2008-03-05', " + Quoted(document.business) + ", " + Quoted(document.source) + ", N'S1', " +
        warehouse + ", N'D1', N'D2', N'101', N'C1', N'V1', '2008-03-01')");
    const std::string receipt = document.receipt ? "1" : "0";
    for (const std::string line : {"1", "2"}) {
        const bool posted = line == "2";
        const std::string own = id + line;
        account.Execute(
            "insert into Demo_DocumentLine (LineID, DocID, cInvCode, cFree1, cBatchIA, bRdFlag, iQuantity, iUnitCost, "
            "iPrice, iDif, iMaterialFee, iProcessFee, cAccounter, dKeepDate, iDLsID, iSBsID, cGuid, cGuidSource, "
            "iConsignmentAutoID, cDefine26, cItem_class) values (" +
            own + ", " + id + ", N'A1', N'红', N'B7', " + receipt + ", 4, 2.5, 10, 1.5, 6, 4, " +
            (posted                           ? "N'张三', '2008-03-31'"
             : line == "1" && document.id % 2 ? "null, null"
                                              : "N'', null") +
            ", 71, 81, N'g" + own + "', N'g101', 101, 0.5, N'P')");
    }
}

class Views : public testing::Test {
  protected:
    Views()
    {
        AddMasterData(objAccount);
        for (const Document& document : kDocuments)
            AddDocument(objAccount, document);
    }

    Lines Of(const std::string& column, const std::string& view)
    {
        return objAccount.Rows("select " + column + " from " + view + " order by 1");
    }

    SchemaAccount objAccount;
};

TEST_F(Views, OfUnpostedDocumentsHoldTheUnpostedLinesOfTheirKind)
{
    EXPECT_EQ(Of("ID", "rpt_rdrecordsIA870wt"), (Lines{"11", "21", "31", "41", "51", "61"}));
    EXPECT_EQ(Of("ID", "rpt_rdrecordsIA870wt01"), Lines{"11"});
    EXPECT_EQ(Of("ID", "rpt_rdrecordsIA870wt08"), Lines{"21"});
    EXPECT_EQ(Of("ID", "rpt_rdrecordsIA870wt09"), Lines{"31"});
    EXPECT_EQ(Of("ID", "rpt_rdrecordsIA870wt10"), Lines{"41"});
    EXPECT_EQ(Of("ID", "rpt_rdrecordsIA870wt11"), Lines{"51"});
    EXPECT_EQ(Of("ID", "rpt_rdrecordsIA870wt32"), Lines{"61"});
    EXPECT_EQ(Of("ID", "dispatchlistsIA870wt"), Lines{"71"});
    EXPECT_EQ(Of("ID", "SaleBillVouchsIA870wt"), (Lines{"81", "91"}));
    EXPECT_EQ(Of("ID", "v_ex_invoicedetailIA870wt"), Lines{"111"});
    EXPECT_EQ(Of("ID", "PurBillVouchsIA870wt"), Lines{"121"});
    EXPECT_EQ(Of("ID", "JustinVouchsIA870wt"), Lines{"131"});
    EXPECT_EQ(Of("ID", "rpt_PU_v_VMIUsedVouchsIA870wt"), Lines{"141"});
}

TEST_F(Views, OfDocumentLinesHoldPostedAndUnpostedLinesOfTheirKind)
{
    EXPECT_EQ(Of("ID", "rpt_rdrecordsIA870"),
              (Lines{"11", "12", "21", "22", "31", "32", "41", "42", "51", "52", "61", "62"}));
    EXPECT_EQ(Of("ID", "salebillvouchsIA870"), (Lines{"81", "82", "91", "92"}));
    EXPECT_EQ(Of("ID", "v_ex_invoicedetailIA870"), (Lines{"111", "112"}));
    EXPECT_EQ(Of("ID", "purbillvouchsIA870"), (Lines{"121", "122"}));
    EXPECT_EQ(Of("ID", "justinvouchsIA870"), (Lines{"131", "132"}));
    EXPECT_EQ(Of("ID", "rpt_PU_v_VMIUsedVouchsIA870"), (Lines{"141", "142"}));
    EXPECT_EQ(objAccount.Rows("select ID from purbillvouchsIA870 where isnull(caccounter,'')=''"),
              Lines{"121"});
}

// Ordinary sales would count twice where the issue note or the invoice posts them.
TEST_F(Views, OfDispatchLinesHoldOrdinarySalesWhereTheDispatchNotePostsThem)
{
    EXPECT_TRUE(Of("ID", "DispatchListsIA870").empty());
    objAccount.Execute("update Demo_Document set cBusType = N'分期收款' where Kind = N'DISP'");
    EXPECT_EQ(Of("ID", "DispatchListsIA870"), (Lines{"71", "72"}));
    objAccount.Execute("update Demo_Document set cBusType = N'普通销售' where Kind = N'DISP'");
    objAccount.Execute(
        "insert into AccInformation (cSysID, cName, cValue) values (N'IA', N'bSaleType', N'发出商品')");
    EXPECT_EQ(Of("ID", "DispatchListsIA870"), (Lines{"71", "72"}));
}

TEST_F(Views, OfDocumentsShowTheirKindOfHeadsAndLines)
{
    EXPECT_EQ(Of("ID, cSource", "rdrecord"),
              (Lines{"1|NULL", "2|NULL", "3|NULL", "4|NULL", "5|NULL", "6|发货单"}));
    EXPECT_EQ(objAccount.Rows(
                  "select AutoID, ID, iDLsID, cBAccounter from rdrecords where AutoID > 50 order by AutoID"),
              (Lines{"51|5|71|NULL", "52|5|71|张三", "61|6|71|", "62|6|71|张三"}));
    EXPECT_EQ(Of("ID, cBusType", "rdrecord01"), Lines{"1|普通采购"});
    EXPECT_EQ(Of("AutoID, ID, iQuantity, iAPrice, iMaterialFee, FaCost", "rdrecords01"),
              (Lines{"11|1|4|10|6|2.5", "12|1|4|10|6|2.5"}));
    EXPECT_EQ(Of("ID, cCode, cSource", "rdrecord32"), Lines{"6|No6|发货单"});
    EXPECT_EQ(Of("AutoID, ID, iDLsID, iSBsID, cBAccounter", "rdrecords32"),
              (Lines{"61|6|71|81|", "62|6|71|81|张三"}));
    EXPECT_EQ(Of("DLID, cDLCode", "DispatchList"), Lines{"7|No7"});
    EXPECT_EQ(Of("DLID, iDLsID", "DispatchLists"), (Lines{"7|71", "7|72"}));
    EXPECT_EQ(Of("sBVID", "salebillvouch"), (Lines{"8", "9"}));
    EXPECT_EQ(Of("AutoID, sBVID, iDLsID, cBAccounter", "salebillvouchs"),
              (Lines{"81|8|71|", "82|8|71|张三", "91|9|71|NULL", "92|9|71|张三"}));
    EXPECT_EQ(Of("AutoID, GuidS", "ex_consignmentdetail"), (Lines{"101|g101", "102|g102"}));
    EXPECT_EQ(Of("AutoID, guid_source, cBAccounter", "ex_invoicedetail"),
              (Lines{"111|g101|NULL", "112|g101|张三"}));
    EXPECT_EQ(Of("AutoID, iConfirmQuantity, iAPrice, iaCost", "PU_v_VMIUsedVouchs"),
              (Lines{"141|4|10|2.5", "142|4|10|2.5"}));
}

TEST_F(Views, OfUnpostedDocumentsNameWhatTheirCodesStandFor)
{
    EXPECT_EQ(
        Of("ID, iPZID, cVouType, cVouCode, cBusType, bRdFlag, cWhName, cDepName, cAccDep, cRdName, cCusName, "
           "cCusAbbName, cCCCode, cVenName, cVCCode, cInvCCode, cInvName, cInvDefine2, iid, cBatchIA, cFree1, "
           "iQuantity, iUnitCost, iPrice, iMaterialFee, iProcessFee, cDefine26, cPZdigest",
           "rpt_rdrecordsIA870wt01"),
        Lines{
            "11|1|01|No1|普通采购|1|原料库|采购部|D2|采购入库|东方公司|东方|K|西方工厂|L|01|螺丝|蓝|A1|B7|红|4|"
            "2.5|10|6|4|0.5|NULL"});
    EXPECT_EQ(Of("ID, iDLsID", "dispatchlistsIA870wt"), Lines{"71|71"});
    EXPECT_EQ(Of("ID, cDLCode, cSTCode, iTB", "SaleBillVouchsIA870wt"), (Lines{"81|71|S1|0", "91|71|S1|0"}));
    EXPECT_EQ(Of("ID, iConsignmentAutoID", "v_ex_invoicedetailIA870wt"), Lines{"111|101"});
}

TEST_F(Views, OfDirectBusinessHaveNoWarehouse)
{
    EXPECT_EQ(objAccount.Rows("select ID, cWhCode, cWhName, cDepName from SaleBillVouchsIA870wt "
                              "where cBusType = N'直运销售'"),
              Lines{"91|NULL|NULL|采购部"});
    EXPECT_EQ(Of("ID, cWhCode, cWhName", "PurBillVouchsIA870wt"), Lines{"121|NULL|NULL"});
}

// What posting does: the line takes poster and date, the ledger takes the row.
TEST_F(Views, LoseALineThatIsPosted)
{
    objAccount.Execute(
        "update Demo_DocumentLine set cAccounter = N'李四', dKeepDate = '2008-03-31' where LineID = 11\r\n"
        "insert into IA_Subsidiary (ID, iPZID, iYear, iMonth, dVouDate, dKeepDate, cAccounter, cVouType, bRdFlag, "
        "cInvCode) select l.LineID, l.DocID, 2008, 3, h.dVouDate, l.dKeepDate, l.cAccounter, h.cVouType, l.bRdFlag, "
        "l.cInvCode from Demo_DocumentLine l inner join Demo_Document h on h.DocID = l.DocID where l.LineID = 11");
    EXPECT_TRUE(Of("ID", "rpt_rdrecordsIA870wt01").empty());
    EXPECT_EQ(objAccount.Rows("select cAccounter from rpt_rdrecordsIA870 where ID = 11"), Lines{"李四"});
    EXPECT_EQ(objAccount.Rows("select ID, cAccounter from IA_Subsidiary"), Lines{"11|李四"});
}

TEST_F(Views, HaveNoNullWhereTheCatalogueSaysSo)
{
    objAccount.Execute("update Demo_Document set cBusType = N'分期收款' where Kind = N'DISP'");
    objAccount.Execute(
        "insert into IA_Subsidiary (iYear, iMonth, dVouDate, dKeepDate, cAccounter, cVouType, "
        "bRdFlag, cInvCode) values (2008, 3, '2008-03-05', '2008-03-31', N'张三', N'01', 1, N'A1'), "
        "(2008, 3, '2008-03-05', '2008-03-31', N'张三', N'01', 1, N'not an item')\r\n"
        "insert into IA_Summary (iYear, iMonth, cInvCode) values (2008, 3, N'not an item')\r\n"
        "insert into Demo_SubsidiaryStd (AutoID, fInvStdPrice) values (1, 7)\r\n"
        "insert into Demo_PlannedPrice (cInvCode, fInvRCost) values (N'A1', 3)");
    for (const CatalogueObject& object : ReadObjects()) {
        if (!object.view || object.name == "NE_FitemssEx_View")
            continue;
        EXPECT_NE(objAccount.Single("select count(*) from " + object.name), "0") << object.name;
        std::string nulls;
        for (const CatalogueColumn& column : object.columns)
            if (!column.nullable)
                nulls += (nulls.empty() ? " where " : " or ") + column.name + " is null";
        if (nulls.empty())
            continue;
        EXPECT_EQ(objAccount.Single("select count(*) from " + object.name + nulls), "0") << object.name;
    }
}

// --- the ledger --------------------------------------------------------------------------------

TEST_F(Views, OfTheLedgerNameEveryRow)
{
    objAccount.Execute(
        "insert into IA_Subsidiary (iYear, iMonth, dVouDate, dKeepDate, cAccounter, cVouType, bRdFlag, cInvCode, "
        "cWhCode, cDepCode, cAccDep, cRdCode, cCusCode, cVenCode, iAInQuantity, iAInPrice) values "
        "(2008, 3, '2008-03-05', '2008-03-31', N'张三', N'01', 1, N'a1', N'W1', N'D1', N'D2', N'101', N'C1', N'V1', 4, 10), "
        "(2008, 3, '2008-11-30 23:59', '2008-12-01', N'张三', N'99', 0, N'B9', null, null, null, null, null, null, 0, 0)");
    EXPECT_EQ(
        objAccount.Rows("select AutoID, dVouDate, cWhName, cWhValueStyle, cDepName, cAccDepName, cInvCName, "
                        "cInvName, cValueType, bCheckBatch, cVouchName, cRdName, cCCName, cCusName, cVCName, "
                        "cVenName, cInvDefine2 from IA_V_Subsidiary order by AutoID"),
        (Lines{
            "1|2008-03-05|原料库|移动平均法|采购部|财务部|原料|螺丝|先进先出法|False|采购入库单|采购入库|国内|"
            "东方公司|本地|西方工厂|蓝",
            "2|2008-11-30|NULL|NULL|NULL|NULL|NULL|NULL|NULL|False|NULL|NULL|NULL|NULL|NULL|NULL|NULL"}));
}

TEST_F(Views, OfTheSummaryLeaveDirectBusinessAndPeriodsOut)
{
    objAccount.Execute(
        "insert into IA_Summary (iYear, iMonth, cInvCode, cWhCode, cDepCode, iDirect, iPeriod, iNum, "
        "iMoney) values (2008, 1, N'A1', N'W1', N'D1', null, 0, 3, 30), "
        "(2008, 2, N'A1', N'W1', N'D1', 1, 0, 4, 40), (2008, 3, N'A1', N'W1', N'D1', 0, 1, 5, 50)");
    EXPECT_EQ(objAccount.Rows(
                  "select iMonth, cWhName, cDepName, cAccDep, cInvName, iNum, iMoney from IA_V_Summary"),
              Lines{"1|原料库|采购部|D1|螺丝|3|30"});
}

TEST_F(Views, OfProjectClassesHoldEachOnce)
{
    for (const char* project : {"N'P'", "N'p '", "N'Q'", "null"})
        objAccount.Execute(
            "insert into IA_EnSubsidiary (inid, cVouType, iSrcID, cSrcVouType, iYear, dVouDate, "
            "bRdFlag, cInvCode, cItem_class) values (71, N'05', 71, N'05', 2008, '2008-03-05', 1, "
            "N'A1', " +
            std::string(project) + ")");
    EXPECT_EQ(objAccount.Single("select count(*) from NE_FitemssEx_View"), "2");
}

// --- standard cost -----------------------------------------------------------------------------

class StandardCost : public Views {
  protected:
    // A receipt of 10, an issue of 4 without differences, a receipt of 0, an issue that has no standard cost.
    StandardCost()
    {
        objAccount.Execute(
            "insert into IA_Subsidiary (iYear, iMonth, dVouDate, dKeepDate, cAccounter, cVouType, bRdFlag, cInvCode, "
            "cWhCode, cCusCode, iAInQuantity, iAOutQuantity) values "
            "(2008, 3, '2008-03-05', '2008-03-31', N'张三', N'01', 1, N'A1', N'W1', null, 10, null), "
            "(2008, 3, '2008-03-06', '2008-03-31', N'张三', N'32', 0, N'A1', N'W1', N'C1', null, 4), "
            "(2008, 3, '2008-03-07', '2008-03-31', N'张三', N'20', 1, N'A1', N'W1', null, 0, null), "
            "(2008, 3, '2008-03-08', '2008-03-31', N'张三', N'11', 0, N'A1', N'W1', null, null, 2)\r\n"
            "insert into Demo_SubsidiaryStd values (1, 50, 20, 10, 5, null), (2, 20, 8, 4, 2, 1), (3, 7, null, null, "
            "null, null)\r\n"
            "insert into pl_co_SubSidiary (ia_autoid, cDifPZID, fInvPriceDif, fInvQuanDif, fLbrPriceDif, fLbrSemiDif, "
            "fManuFixQuanDif, fManuVarPriceDif, fOmCostDif) values (1, N'IA7', 3, -1, 2, 0.5, 1, -0.5, 4)");
    }

    std::string Row(const std::string& columns, int line)
    {
        return objAccount.Single("select " + columns + " from V_IA_CostacCount where dVouDate = '2008-03-0" +
                                 std::to_string(4 + line) + "'");
    }
};

TEST_F(StandardCost, HasTheRowsThatHaveAStandardCost)
{
    EXPECT_EQ(objAccount.Single("select count(*) from V_IA_CostacCount"), "3");
}

TEST_F(StandardCost, IsEmptyInAnAccountWithoutStandardCosts)
{
    objAccount.Execute("delete from Demo_SubsidiaryStd");
    EXPECT_EQ(objAccount.Single("select count(*) from V_IA_CostacCount"), "0");
}

TEST_F(StandardCost, OfAReceiptAddsItsDifferences)
{
    // 50 + 20 + 10 + 5 = 85; 3 - 1 + 2 + 0.5 + 1 - 0.5 + 4 = 9
    EXPECT_EQ(Row("iInQuantity, istdincost, istdinprice, iindifcost, iindif, iincost, iinprice", 1),
              "10|8.5|85|0.9|9|9.4|94");
    EXPECT_EQ(Row("istdininvcost, istdininvprice, iininvquandifcost, iininvquandif, iininvpricedifcost, "
                  "iininvpricedif, iininvcost, iininvprice",
                  1),
              "5|50|-0.1|-1|0.3|3|5.2|52");
    EXPECT_EQ(
        Row("istdinlbrprice, iinlbrquandif, iinlbrpricedif, iinsemilbrdifcost, iinsemilbrdif, iinlbrprice",
            1),
        "20|NULL|2|0.05|0.5|22.5");
    EXPECT_EQ(Row("iinmanufixquandif, iinmanufixprice, iinmanuvarpricedif, iinmanuvarprice", 1),
              "1|11|-0.5|4.5");
    EXPECT_EQ(Row("istdinomprice, iinomdif, iinomcost, iinomprice", 1), "NULL|4|0.4|4");
    EXPECT_EQ(
        Row("iOutQuantity, istdoutcost, istdoutprice, ioutdif, ioutprice, ioutinvprice, ioutomprice", 1),
        "NULL|NULL|NULL|NULL|NULL|NULL|NULL");
}

TEST_F(StandardCost, OfAnIssueWithoutDifferencesIsItsStandard)
{
    EXPECT_EQ(Row("iOutQuantity, istdoutcost, istdoutprice, ioutdifcost, ioutdif, ioutcost, ioutprice", 2),
              "4|8.75|35|0|0|8.75|35");
    EXPECT_EQ(
        Row("istdoutlbrcost, ioutlbrquandif, ioutsemilbrdif, ioutlbrcost, ioutlbrprice, istdoutomprice, "
            "ioutsemiomdif",
            2),
        "2|NULL|NULL|2|8|1|NULL");
    EXPECT_EQ(Row("iInQuantity, iinprice, istdininvcost", 2), "NULL|NULL|NULL");
}

TEST_F(StandardCost, OfAQuantityOfZeroHasAmountsOnly)
{
    EXPECT_EQ(
        Row("iInQuantity, istdincost, istdinprice, iincost, iinprice, istdininvcost, istdininvprice", 3),
        "0|NULL|7|NULL|7|NULL|7");
}

TEST_F(StandardCost, CarriesNamesAndAccounts)
{
    EXPECT_EQ(
        Row("cWhName, cComUnitName, cInvName, cDifPZID, iPZCode, fInvStdCostCode, fSemiOmQuanDifName, cVouType",
            1),
        "原料库|个|螺丝|IA7|NULL|500101|半成品委外加工差异|01");
    EXPECT_EQ(Row("cCusCode, CcCusCode, cCusAbbName", 2), "C1|C1|东方");
}

}  // namespace
}  // namespace kavelin::demo
