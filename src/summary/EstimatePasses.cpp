#include "summary/EstimatePasses.h"

#include "frame/Statement.h"
#include "frame/Text.h"
#include "summary/EstimateTable.h"

namespace kavelin {

namespace {

// ---- columns

constexpr std::string_view kOpening = "QcQuantity,QcMoney";
constexpr std::string_view kReceived = "InQuantity,InMoney";
constexpr std::string_view kIssued = "OutQuantity,OutMoney";
constexpr std::string_view kClosing = "QmQuantity,QmMoney";

constexpr std::string_view kOwn = "Ia_Subsidiary.cVouType";
constexpr std::string_view kSource = "Ia_Subsidiary.cSrcVouType";
constexpr std::string_view kSourceOrOwn = "isnull(Ia_Subsidiary.cSrcVouType,Ia_Subsidiary.cVouType)";
constexpr std::string_view kOfWorkTable = "a.cVouType";

// ---- quantities and money. Of subcontracted work the material is no part of the estimate.

constexpr std::string_view kTurned = "Cast(-1*IaInquantity As Decimal(34,8))";
constexpr std::string_view kMoneyReversal =
    "Cast(case when Ia_Subsidiary.cbustype= N'委外加工'"
    " then -1*(isnull(iainprice,0)+isnull(iDebitDifCost,0)-isnull(iCreditDifCost,0)-isnull(imaterialfee,0))"
    " else -1*iainprice-isnull(iDebitDifCost,0)+isnull(iCreditDifCost,0) end As Decimal(34,8))";

constexpr std::string_view kCast = "Cast(IaInquantity As Decimal(34,8))";
constexpr std::string_view kMoneyEstimate =
    "Cast(case when Ia_Subsidiary.cbustype= N'委外加工'"
    " then isnull(iainprice,0)+isnull(iDebitDifCost,0)-isnull(iCreditDifCost,0)-isnull(imaterialfee,0)"
    " else iainprice+isnull(iDebitDifCost,0)-isnull(iCreditDifCost,0) end As Decimal(34,8))";

constexpr std::string_view kPlain = "IaInquantity";
constexpr std::string_view kMoneyArrival =
    "(case when Ia_Subsidiary.cbustype= N'委外加工'"
    " then isnull(iainprice,0)+isnull(iDebitDifCost,0)-isnull(iCreditDifCost,0)-isnull(imaterialfee,0)"
    " else Cast(iainprice+isnull(iDebitDifCost,0)-isnull(iCreditDifCost,0) As Decimal(34,8)) end)";

// What is left of the settled price without the difference is the money of the estimate.
constexpr std::string_view kTurnedSettled = "Cast(-1*Isvquantity As Decimal(34,8))";
constexpr std::string_view kMoneySettled =
    "(isnull(isvprice,0)- (isnull(b.iainprice,0)+isnull(b.iDebitDifCost,0)-isnull(b.iCreditDifCost,0)))";
constexpr std::string_view kTurnedMoneySettled =
    "-1 * (isnull(isvprice,0)- (isnull(b.iainprice,0)+isnull(b.iDebitDifCost,0)-isnull(b.iCreditDifCost,0)))";

constexpr std::string_view kSettled = "Isvquantity";
constexpr std::string_view kMoneySettledWork =
    "(isnull(isvprice,0)- (isnull(b.iainprice,0)+isnull(b.iDebitDifCost,0)-isnull(b.iCreditDifCost,0))"
    "-isnull(Pursettlevouchs.MaterialFee,0))";
constexpr std::string_view kTurnedMoneySettledWork =
    "-1 * (isnull(isvprice,0)- (isnull(b.iainprice,0)+isnull(b.iDebitDifCost,0)-isnull(b.iCreditDifCost,0))"
    "-isnull(Pursettlevouchs.MaterialFee,0))";

// Of consignment.
constexpr std::string_view kTurnedSettledOf = "Cast(-1*Pursettlevouchs.iSVQuantity As Decimal(34,8))";
constexpr std::string_view kSettledOf = "Pursettlevouchs.iSVQuantity";

constexpr std::string_view kGoods = " and isnull(ia_subsidiary.cBustype,N'')<>N'委外加工'";
constexpr std::string_view kWork = " and isnull(ia_subsidiary.cBustype,N'')=N'委外加工'";

// ---- ledger lines

std::string OfVoucherTypes(const EstimateRun& run)
{
    return "(" + run.strVouCond + ")";
}

std::string OfSourceTypes(const EstimateRun& run)
{
    return "(" + OnSourceType(run.strVouCond) + ")";
}

std::string InMonth(const EstimateRun& run, std::string_view month)
{
    return "Ia_Subsidiary.iYear=" + run.strYear + " and Ia_Subsidiary.iMonth" + std::string(month) +
           run.strMonth;
}

std::string LinesWith(const EstimateRun& run, std::string_view month, const std::string& condition)
{
    return JoinLines({
        JoinMasters(),
        " where " + condition,
        " and Ia_Subsidiary.cBusType in (" + run.strBusTypes + ") and " + InMonth(run, month),
    });
}

std::string EstimateLine(const EstimateRun& run)
{
    return "(" + OfVoucherTypes(run) + " and Ia_Subsidiary.bFlag=1)";
}

std::string Estimates(const EstimateRun& run, std::string_view month)
{
    return LinesWith(run, month, EstimateLine(run));
}

std::string TakenOut(const EstimateRun& run, std::string_view month)
{
    return LinesWith(run, month,
                     "Ia_Subsidiary.cVouType='24' and Ia_Subsidiary.bFlag=1 and " + OfSourceTypes(run));
}

std::string EstimatesAndBroughtBack(const EstimateRun& run, std::string_view month)
{
    return LinesWith(run, month,
                     "(" + EstimateLine(run) +
                         " or (Ia_Subsidiary.cVouType='30' and Ia_Subsidiary.bFlag=1 and " +
                         OfSourceTypes(run) + "))");
}

// Estimates of the years before are of type 33, whatever their bFlag.
std::string EstimatesAndOlder(const EstimateRun& run, std::string_view month)
{
    return LinesWith(
        run, month,
        "(" + EstimateLine(run) + " or (Ia_Subsidiary.cVouType = '33' and " + OfSourceTypes(run) + "))");
}

std::string EstimatesAndReversals(const EstimateRun& run, std::string_view month)
{
    return LinesWith(run, month,
                     "(" + EstimateLine(run) +
                         " or (Ia_Subsidiary.cvoutype in (N'30',N'24') and Ia_Subsidiary.bFlag=1 and " +
                         OfSourceTypes(run) + ") or (Ia_Subsidiary.cVouType = '33' and " +
                         OfSourceTypes(run) + "))");
}

// ---- what was settled of lines of the work table

std::string SettledLines(const EstimateRun& run, const std::string& settlements)
{
    return JoinLines({
        "",
        " inner join (select distinct autoid,id,cvoutype from [" + run.strZgTable +
            "]) a on a.autoid = ia_subsidiary.AutoID",
        " inner join (select psvsid,ID,csrcvoutype,iainprice,iDebitDifCost,iCreditDifCost from ia_subsidiary",
        " where ia_subsidiary.cVouType='20' and " + OfSourceTypes(run) + " and " + settlements + ") b",
        " on a.ID = b.ID and a.cvoutype = b.csrcvoutype" + JoinMasters(),
        " left join Pursettlevouchs on pursettlevouchs.id=b.psvsid",
        " where ia_subsidiary.iYear=" + run.strYear + " and  1= 1 ",
    });
}

std::string SettledBefore(const EstimateRun& run, std::string_view month)
{
    return SettledLines(run, InMonth(run, month) + " and bFlag=2 and (cBusType=N'暂估报销' or cBusType in (" +
                                 run.strBusTypes + "))");
}

std::string SettledInMonth(const EstimateRun& run, std::string_view month)
{
    return SettledLines(run, InMonth(run, month) + " and bFlag<>1 and cBusType in (N'暂估报销',N'受托代销')");
}

// ---- the passes

// clang-format off
constexpr EstimateStatement kMonthReversal[] = {
    // fills     type of document  quantity  money           ledger lines             month
    {kOpening,   kSource,          kTurned,  kMoneyReversal, TakenOut,                "="},
    {kReceived,  kOwn,             kCast,    kMoneyEstimate, Estimates,               "="},
    {kClosing,   kSourceOrOwn,     kCast,    kMoneyEstimate, EstimatesAndBroughtBack, "="},
};

constexpr EstimateStatement kArrivalReversal[] = {
    // fills     type of document  quantity  money           ledger lines             month
    {kOpening,   kSourceOrOwn,     kPlain,   kMoneyArrival,  EstimatesAndReversals,   "<"},
    {kReceived,  kOwn,             kPlain,   kMoneyArrival,  Estimates,               "="},
    {kClosing,   kSourceOrOwn,     kPlain,   kMoneyArrival,  EstimatesAndReversals,   "<="},
};

// What was settled follows the estimates in whose lines it is looked for.
constexpr EstimateStatement kArrivalDifference[] = {
    // fills     type of document  quantity        money                    ledger lines       month  further
    {kOpening,   kSourceOrOwn,     kPlain,         kMoneyArrival,           EstimatesAndOlder, "<"},
    {kOpening,   kSourceOrOwn,     kTurnedSettled, kTurnedMoneySettled,     SettledBefore,     "<",   kGoods},
    {kOpening,   kSourceOrOwn,     kTurnedSettled, kTurnedMoneySettledWork, SettledBefore,     "<",   kWork},
    {kReceived,  kOwn,             kPlain,         kMoneyArrival,           Estimates,         "="},
    {kIssued,    kSourceOrOwn,     kSettled,       kMoneySettled,           SettledInMonth,    "=",   kGoods},
    {kIssued,    kSourceOrOwn,     kSettled,       kMoneySettledWork,       SettledInMonth,    "=",   kWork},
};

// Its money comes from the documents, behind these.
constexpr EstimateStatement kConsignment[] = {
    // fills        type of document  quantity           money  ledger lines       month
    {"QcQuantity",  kSourceOrOwn,     kPlain,            "",    EstimatesAndOlder, "<"},
    {"QcQuantity",  kOfWorkTable,     kTurnedSettledOf,  "",    SettledBefore,     "<"},
    {"InQuantity",  kOwn,             kPlain,            "",    Estimates,         "="},
    {"OutQuantity", kSourceOrOwn,     kSettledOf,        "",    SettledInMonth,    "="},
};
// clang-format on

}  // namespace

std::span<const EstimateStatement> MonthReversal()
{
    return kMonthReversal;
}

std::span<const EstimateStatement> ArrivalReversal()
{
    return kArrivalReversal;
}

std::span<const EstimateStatement> ArrivalDifference()
{
    return kArrivalDifference;
}

std::span<const EstimateStatement> Consignment()
{
    return kConsignment;
}

std::string InsertEstimates(const EstimateRun& run, const EstimateStatement& statement, CalMethod calMethod)
{
    const std::string money = statement.money.empty() ? "" : "," + std::string(statement.money);
    return JoinLines({
               "insert into [" + run.strZgTable + "] (AutoID,ID,cVouType," + std::string(statement.fills) +
                   ",CalMethod)",
               "select Ia_Subsidiary.AutoID,Ia_Subsidiary.ID," + std::string(statement.vouType) + ",",
               " " + std::string(statement.quantity) + money + "," + NumberOf(calMethod),
               " from ia_subsidiary",
           }) +
           statement.lines(run, statement.month) + std::string(statement.further) + " " + run.strWhere;
}

std::string OnSourceType(const std::string& strVouCond)
{
    return ReplaceAll(strVouCond, "cVouType", "cSRcVoutype");
}

}  // namespace kavelin
