#include "frame/AccountStatements.h"

namespace kavelin {

std::string SelectParameter(const std::string& cSysID, const std::string& cName)
{
    return "Select * FROM AccInformation where cSysID= N'" + cSysID + "' and cName= N'" + cName + "'";
}

std::string SelectStartDate(const std::string& strSysID)
{
    return "SELECT * FROM AccInformation WHERE cSysID= N'" + strSysID + "' AND cName= N'd" + strSysID +
           "StartDate'";
}

std::string SelectPeriod(const std::string& strAccountId, const std::string& strYear, std::int32_t lngPeriod)
{
    return "Select dBegin,dEnd from VosSystem..UA_Period where cAcc_ID= N'" + strAccountId +
           "' and iYear=" + strYear + " and iID=" + std::to_string(lngPeriod);
}

std::string SelectInvDefineName(int number)
{
    return "Select * from UserDef  where cClass = N'存货' and  cItem = N'自定义项" + std::to_string(number) +
           "'" + " and isnull(cItemName, N'')<> N''";
}

}  // namespace kavelin
