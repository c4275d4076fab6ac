// Readers of the account's parameters and periods. None of them caches: each call is one query, on the
// connections in ModPub. A failed query goes to the caller.
#pragma once

#include "frame/Value.h"

#include <array>
#include <cstdint>
#include <string>

namespace kavelin {

// The parameter's `cvalue`, else its `cDefault`, else "". A value of blanks is a value. The arguments are
// pasted into the statement as they are.
Value GetAccInfoValue(const std::string& cSysID, const std::string& cName);

// The month in which the module starts, from the parameter named "d", the module's code and "StartDate";
// 0 if there is none. An empty `strSysID` means "IA" and is written back.
std::uint8_t GetSysStartMonth(std::string& strSysID);

// The month of `dIAStartDate` as text, "0" when unknown. A start date that is no date is shown to the
// user in a message and counts as unknown.
std::string GetIAStartMonth();

// Whether the login's account has the period, and its first and last day as "YYYY-MM-DD" in the
// arguments that are given. An empty `strYear` is filled with the login's year. Reads on gcnnSystem.
bool GetPeriodDates(std::int32_t lngPeriod, Value* varBegin, Value* varEnd, std::string& strYear);

// The customer's names of the inventory user fields 1 to 16, in slots 0 to 15. A field without a name
// leaves its slot as it was.
void GetInvDefineNames(std::array<std::string, 16>& arrNames);

// Prepares gobjLedgerLogin and gobjLedgerPub: they are made once and take up the latest login at every call.
void InitLedgerObjects();

// The same, and gobjLedgerParams, made if there is none, with the options of the accounting year.
void InitLedgerParams(const std::string& strYear);

}  // namespace kavelin
