#include "journal/WtPostedStatements.h"

#include "frame/Statement.h"
#include "journal/WtText.h"

namespace kavelin {

namespace {

std::string InsertFromLedger(const WtRun& run)
{
    return "Insert Into " + run.strTable + run.strSelect + " From IA_SubSidiary NoSub" + run.strJoin;
}

}  // namespace

std::string InsertPosted(const WtRun& run)
{
    return JoinLines({
        InsertFromLedger(run) + " where " + run.strWhere +
            " And NoSub.iMonth<>0  and Left(isnull(NoSub.cBusType,N''),2)<>N'直运'",
        " And Not (NoSub.cVouType = N'20' And isnull(NoSub.IAInPrice,0) = 0"
        " And IsNULL(NoSub.iDebitDifCost,0) = 0 And IsNULL(NoSub.iCreditDifCost,0) = 0)",
        " order by isnull(bakID,AutoID)",
    });
}

std::string InsertPostedDirect(const WtRun& run)
{
    return JoinLines({
        InsertFromLedger(run) + " where " + StripClause(run.strWhere, "And NoSub.cDepCode") +
            " And Left(isnull(NoSub.cBusType,N''),2)=N'直运'  And NoSub.iMonth<>0 ",
        " order by isnull(bakID,AutoID)",
    });
}

}  // namespace kavelin
