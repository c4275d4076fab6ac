#include "goods/CostAccount.h"

#include "frame/Text.h"
#include "support/GoldenFile.h"

namespace kavelin::test {

CostAccount::CostAccount()
{
    const std::string vouchers =
        ReadFile(std::string(KAVELIN_SOURCE_DIR) + "/src/demo/data/schema/04-vouchers.sql");
    for (const std::string& batch : Split(vouchers, "\nGO\n"))
        Run(batch);
}

void CostAccount::AddLine(const GoodsLine& line, const LineCosts& costs)
{
    Add(line);
    const std::string last = "(select max(AutoID) from IA_EnSubsidiary)";
    if (*costs.standard)
        Run("insert into IA_EnSubsidiary_STSub (iIAEnSubID, fInvStdPrice, fLaborStdPrice, fManuFixPrice,"
            " fManuVarPrice, fOmPrice) select " +
            last + "," + costs.standard);
    if (*costs.differences)
        Run("insert into pl_co_EnSubsidiary (iIASubID, fInvPriceDif, fInvQuanDif, fLbrPriceDif, fLbrQuanDif,"
            " fLbrSemiDif, fManuFixPriceDif, fManuFixQuanDif, fSemiManuFixDif, fManuVarPriceDif,"
            " fManuVarQuanDif, fSemiManuVarDif, fOmCostDif, fSemiOmDif) select " +
            last + "," + costs.differences);
}

}  // namespace kavelin::test
