#include "journal/WtRun.h"

#include "frame/AccountParameters.h"

namespace kavelin {

namespace {

// A module that the account does not have leaves no parameter behind, and nothing of it is switched on.
bool IsOn(const Value& value)
{
    return !ToText(value).empty() && ToBoolean(value);
}

}  // namespace

WtFlags ReadWtFlags()
{
    WtFlags flags;
    flags.bCommitSell = IsOn(GetAccInfoValue("AA", "bCommitSell"));
    flags.bFQSK = IsOn(GetAccInfoValue("SA", "bFQSK"));
    flags.bZYXS = IsOn(GetAccInfoValue("SA", "bZYXS"));
    flags.dEXFirstDate = ToText(GetAccInfoValue("EX", "dEXFirstDate"));
    flags.bSaleType = ToText(GetAccInfoValue("IA", "bSaleType"));
    flags.cExSaleAccType = ToText(GetAccInfoValue("IA", "cExSaleAccType"));
    flags.cEnDispAccountStyle = ToText(GetAccInfoValue("IA", "cEnDispAccountStyle"));
    return flags;
}

}  // namespace kavelin
