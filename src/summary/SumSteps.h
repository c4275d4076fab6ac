// What a run does with documents that are not posted: which it reads, and the rules that then delete what
// would be counted twice or must not be counted at all. A sale goes through dispatch, stock issue and
// invoice; which of them carries the cost is a setting of the account, and the others have to go.
#pragma once

#include "frame/Connection.h"
#include "summary/SumPool.h"

#include <span>
#include <string>
#include <string_view>

namespace kavelin {

// The settings of a run. The account's two are read from their record sets when a rule asks for them, so that
// a missing one fails there.
struct SumSettings {
    bool blnDirect = false;                  // direct business is wanted
    Recordset* objSaleType = nullptr;        // bSaleType
    Recordset* objEntrustedStyle = nullptr;  // cEnDispAccountStyle
};

struct SumStep {
    bool (*applies)(const SumSettings& settings);
    // The statement, of the run's pool and conditions and this step's texts.
    std::string (*statement)(const SumPool& pool, const std::string& where, const SumStep& step);
    std::string_view subject;         // the view that is read, or what follows the pool's name in a delete
    std::string_view condition = {};  // on the view, behind those of the run
};

// Of the unposted pass, in the order in which they run.
std::span<const SumStep> UnpostedSumSteps();

// Of every run, after both passes.
std::span<const SumStep> ClosingSumSteps();

std::string SelectSumSetting(std::string_view name);

}  // namespace kavelin
