#include "support/CostView.h"

#include "frame/Text.h"

#include <string_view>

namespace kavelin::test {

namespace {

constexpr std::string_view kDates = "dVouDate dKeepDate";
constexpr std::string_view kNumbers = "iProOrderIDs iSaleOrderIDs iExRowNo bFlag ID iPZID";

constexpr std::string_view kTexts =
    "cVouCode cAccounter cBusCode strContractCode cProOrderCode cWorkProCodeDis cWorkCenterName"
    " cProCode cSaleOrderCode exoCode cEntrustOrderCode cPurOrderCode cImOrderCode cDemandCode"
    " cDemandMemo cItem_class cItemCName cItemCode cName cPZID iPZCode cPZdigest cBusType cWhCode"
    " cWhName cCCCode cCusCode cCusAbbName cVCCode cVenCode cVenName cDepCode cDepName cHandler"
    " cInvCCode cInvCode cInvName cInvAddCode cComUnitName cInvStd cRdCode cMemo fInvStdCostCode"
    " fInvStdCostName fLaborStdCostCode fLaborStdCostName fManuFixCostCode fManuFixCostName"
    " fManuVarCostCode fManuVarCostName fOmCostCode fOmCostName cDifPZID fInvPriceDifCode"
    " fInvPriceDifName fInvQuanDifCode fInvQuanDifName fLbrPriceDifCode fLbrPriceDifName"
    " fLbrQuanDifCode fLbrQuanDifName fSemiLbrQuanDifCode fSemiLbrQuanDifName fManuFixPriceDifCode"
    " fManuFixPriceDifName fManuFixQuanDifCode fManuFixQuanDifName fSemiManuFixQuanDifCode"
    " fSemiManuFixQuanDifName fManuVarPriceDifCode fManuVarPriceDifName fManuVarQuanDifCode"
    " fManuVarQuanDifName fSemiManuVarQuanDifCode fSemiManuVarQuanDifName fOmCostDifCode"
    " fOmCostDifName fSemiOmQuanDifCode fSemiOmQuanDifName"
    " cVouType cAccDep CcCusCode cWorkCenterCode cCostCenterCode";

// Of receipts; those of issues say "out" for "in".
constexpr std::string_view kReceipts[] = {
    "iinquantity istdincost istdinprice iindifcost iindif iincost iinprice istdininvcost",
    "istdininvprice iininvquandifcost iininvquandif iininvpricedifcost iininvpricedif iininvcost",
    "iininvprice istdinlbrcost istdinlbrprice iinlbrquandifcost iinlbrquandif iinlbrpricedifcost",
    "iinlbrpricedif iinsemilbrdifcost iinsemilbrdif iinlbrcost iinlbrprice istdinmanufixcost",
    "istdinmanufixprice iinmanufixquandifcost iinmanufixquandif iinmanufixpricedifcost",
    "iinmanufixpricedif iinsemimanufixdifcost iinsemimanufixdif iinmanufixcost iinmanufixprice",
    "istdinmanuvarcost istdinmanuvarprice iinmanuvarquandifcost iinmanuvarquandif",
    "iinmanuvarpricedifcost iinmanuvarpricedif iinsemimanuvardifcost iinsemimanuvardif",
    "iinmanuvarcost iinmanuvarprice istdinomcost istdinomprice iinomdifcost iinomdif",
    "iinsemiomdifcost iinsemiomdif",
};

std::string Columns(std::string_view names, std::string_view type)
{
    std::string columns;
    for (const std::string& name : Split(names, " "))
        columns += name + " " + std::string(type) + " null, ";
    return columns;
}

std::string IssueOf(const std::string& receipt)
{
    return receipt.starts_with("istdin") ? "istdout" + receipt.substr(6) : "iout" + receipt.substr(3);
}

std::string Amounts()
{
    std::string columns;
    for (const std::string_view names : kReceipts)
        for (const std::string& name : Split(names, " "))
            columns += Columns(name, "money") + Columns(IssueOf(name), "money");
    return columns;
}

std::string UserFields(int first, int last, const std::string& name)
{
    std::string columns;
    for (int number = first; number <= last; ++number)
        columns += Columns(name + std::to_string(number), "nvarchar(60)");
    return columns;
}

}  // namespace

std::string CreateCostView()
{
    std::string columns = Columns(kDates, "datetime") + Columns(kNumbers, "int") +
                          Columns(kTexts, "nvarchar(120)") + Amounts() + UserFields(1, 16, "cDefine") +
                          UserFields(22, 37, "cDefine") + UserFields(1, 16, "cInvDefine") +
                          UserFields(1, 10, "cFree");
    columns.resize(columns.size() - 2);
    return "create table V_IA_CostacCount (" + columns + ")";
}

}  // namespace kavelin::test
