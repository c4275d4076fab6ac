#include "journal/CostStatements.h"

#include "frame/Statement.h"
#include "journal/CostColumns.h"

namespace kavelin {

std::string SelectCostRows(const std::string& table, const std::string& where, const std::string& vouTypes,
                           const std::string& busTypes)
{
    const std::string ofTypes = vouTypes.empty() ? "" : " And (" + vouTypes + ")";

    return SelectCostColumns() + " into " + table + " from  V_IA_CostacCount  where  " + where + ofTypes +
           busTypes;
}

std::string UpdateCostVoucher(const std::string& table)
{
    return JoinLines({
        " update " + table +
            " set ipzcode=gl_AccVouch.csign + ' ' + Cast(gl_AccVouch.ino_id As nvarchar(10)) from   " +
            table + " a ",
        "  inner join gl_AccVouch on a.cPzID=gl_AccVouch.coutno_id ",
    });
}

std::string UpdateCostDifVoucher(const std::string& table)
{
    return JoinLines({
        " update " + table +
            " set iDifPZid=gl_AccVouch.csign + ' ' + Cast(gl_AccVouch.ino_id As nvarchar(10)) from   " +
            table + " a ",
        "  inner join gl_AccVouch on a.cDifPZid=gl_AccVouch.coutno_id ",
    });
}

}  // namespace kavelin
