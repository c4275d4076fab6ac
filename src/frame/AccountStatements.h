// The statements of the account's parameters and periods.
#pragma once

#include <cstdint>
#include <string>

namespace kavelin {

std::string SelectParameter(const std::string& cSysID, const std::string& cName);
std::string SelectStartDate(const std::string& strSysID);
std::string SelectPeriod(const std::string& strAccountId, const std::string& strYear, std::int32_t lngPeriod);
std::string SelectInvDefineName(int number);

}  // namespace kavelin
