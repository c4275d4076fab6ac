#include "journal/CostColumns.h"

#include "frame/Statement.h"
#include "frame/Text.h"

#include <string_view>

namespace kavelin {

namespace {

constexpr std::string_view kDocument =
    "select  dvoudate, cvoucode, dkeepdate, caccounter, cbuscode, strcontractcode, cproordercode,"
    " iproorderids, cworkprocodedis, cworkcentername, cprocode, csaleordercode, isaleorderids, exocode,"
    " iexrowno, centrustordercode, cpurordercode, cimordercode, cdemandcode, cdemandmemo,"
    " citem_class, citemcname, citemcode, cname, cpzid, ipzcode, cpzdigest, cbustype,";

constexpr std::string_view kParties =
    " cwhcode, cwhname, ccccode, cCusCode, ccusabbname, cvccode, cvencode, cvenname, cdepcode, cdepname,"
    " chandler,";

// Neither cdefine34 nor cinvdefine13: that is wanted.
std::string UserFields()
{
    return Numbered(1, 16, " cdefine{},") + Numbered(22, 33, " cdefine{},") + Numbered(35, 37, " cdefine{},");
}

std::string Inventory()
{
    return " cinvccode, cinvcode, cinvname, cinvaddcode," + Numbered(1, 10, " cfree{},") +
           " ccomunitname, cinvstd," + Numbered(1, 12, " cinvdefine{},") + Numbered(14, 16, " cinvdefine{},");
}

// What is received or issued: quantity, then of the whole and of each cost element what it should cost, by
// how much it differs and what it costs, each per unit and as an amount. Outsourced processing has no actual
// cost here. "{}" is "in" or "out", "{I}" the same with a capital.
constexpr std::string_view kMovement =
    " i{}quantity,"
    " istd{}cost, istd{}price, i{}difcost, i{}dif, i{}cost, i{}price,"

    " istd{}invcost, istd{}invprice, i{}invquandifcost, i{}invquandif, i{}invpricedifcost, i{}invpricedif,"
    " i{}invcost, i{}invprice,"

    " iStd{I}LbrCost, istd{}lbrprice, i{}lbrquandifcost, i{}lbrquandif, i{}lbrpricedifcost, i{}lbrpricedif,"
    " i{}semilbrdifcost, i{}semilbrdif, i{}lbrcost, i{}lbrprice,"

    " istd{}manufixcost, istd{}manufixprice, i{}manufixquandifcost, i{}manufixquandif,"
    " i{}manufixpricedifcost, i{}manufixpricedif, i{}semimanufixdifcost, i{}semimanufixdif,"
    " i{}manufixcost, i{}manufixprice,"

    " istd{}manuvarcost, istd{}manuvarprice, i{}manuvarquandifcost, i{}manuvarquandif,"
    " i{}manuvarpricedifcost, i{}manuvarpricedif, i{}semimanuvardifcost, i{}semimanuvardif,"
    " i{}manuvarcost, i{}manuvarprice,"

    " istd{}omcost, istd{}omprice, i{}omdifcost, i{}omdif, i{}semiomdifcost, i{}semiomdif,";

std::string Movement(std::string_view side, std::string_view capital)
{
    return ReplaceAll(ReplaceAll(kMovement, "{}", side), "{I}", capital);
}

constexpr std::string_view kAccounts =
    " fInvStdCostCode, fInvStdCostName, fLaborStdCostCode, fLaborStdCostName,"
    " fManuFixCostCode, fManuFixCostName, fManuVarCostCode, fManuVarCostName, fOmCostCode, fOmCostName,";

// The second column holds the voucher's number once it is filled in.
constexpr std::string_view kDifferenceVoucher = " cDifPZid, ipzcode As iDifPZid,";

constexpr std::string_view kDifferenceAccounts =
    " fInvPriceDifCode, fInvPriceDifName, fInvQuanDifCode, fInvQuanDifName,"
    " fLbrPriceDifCode, fLbrPriceDifName, fLbrQuanDifCode, fLbrQuanDifName,"
    " fSemiLbrQuanDifCode, fSemiLbrQuanDifName,"
    " fManuFixPriceDifCode, fManuFixPriceDifName, fManuFixQuanDifCode, fManuFixQuanDifName,"
    " fSemiManuFixQuanDifCode, fSemiManuFixQuanDifName,"
    " fManuVarPriceDifCode, fManuVarPriceDifName, fManuVarQuanDifCode, fManuVarQuanDifName,"
    " fSemiManuVarQuanDifCode, fSemiManuVarQuanDifName,"
    " fOmCostDifCode, fOmCostDifName, fSemiOmQuanDifCode, fSemiOmQuanDifName";

}  // namespace

std::string SelectCostColumns()
{
    return EndLines({
        kDocument,
        kParties,
        UserFields(),
        Inventory(),
        " crdcode, cmemo,",
        Movement("in", "In"),
        Movement("out", "Out"),
        kAccounts,
        kDifferenceVoucher,
        kDifferenceAccounts,
    });
}

}  // namespace kavelin
