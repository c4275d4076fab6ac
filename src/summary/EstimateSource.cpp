#include "summary/EstimateSource.h"

#include "frame/Statement.h"
#include "frame/Text.h"

#include <string_view>

namespace kavelin {

namespace {

// "{}" stands for the line's quantity. An opening may come with turned sign, the others never do.
constexpr std::string_view kWork =
    "case when rdrecord.cbustype=N'委外加工' then"
    " case when {}=Rdrecords.iQuantity then Rdrecords.iAPrice-isnull(Rdrecords.iMaterialFee,0)"
    " else {}*(Rdrecords.iAPrice-isnull(Rdrecords.iMaterialFee,0))/Rdrecords.iQuantity end";
constexpr std::string_view kAll = " when {}=Rdrecords.iQuantity then Rdrecords.iAPrice";
constexpr std::string_view kAllTurned = " when {}=-1*Rdrecords.iQuantity then -1*Rdrecords.iAPrice";
constexpr std::string_view kShare = " else {}*Rdrecords.FaCost end";
constexpr std::string_view kConfirmed =
    "case when {}=PU_v_VMIUsedVouchs.iConfirmQuantity then PU_v_VMIUsedVouchs.iAPrice"
    " else {}*PU_v_VMIUsedVouchs.iaCost end";

std::string Of(const EstimateRun& run, std::string_view quantity, std::string_view money)
{
    return ReplaceAll(money, "{}", "[" + run.strZgTable + "]." + std::string(quantity));
}

// The lines of the run whose document is of `vouType`.
std::string From(const EstimateRun& run)
{
    return " from [" + run.strZgTable + "] inner join IA_subsidiary on IA_subsidiary.AutoID = [" +
           run.strZgTable + "].AutoID";
}

std::string Where(const EstimateRun& run, std::string_view vouType, CalMethod calMethod)
{
    return " where isnull(IA_subsidiary.cSRcVoutype,IA_subsidiary.cVouType) = N'" + std::string(vouType) +
           "' and [" + run.strZgTable + "].CalMethod=" + NumberOf(calMethod);
}

}  // namespace

std::string UpdateReceiptMoney(const EstimateRun& run, CalMethod calMethod)
{
    const auto of = [&](std::string_view quantity, std::string_view money) {
        return Of(run, quantity, money);
    };
    return JoinLines({
        "update [" + run.strZgTable + "] set",
        " QcMoney=" + of("QcQuantity", kWork),
        of("QcQuantity", kAll) + of("QcQuantity", kAllTurned) + of("QcQuantity", kShare) + ",",
        " InMoney=" + of("InQuantity", kWork),
        of("InQuantity", kAll) + of("InQuantity", kShare) + ",",
        " OutMoney=" + of("OutQuantity", kWork),
        of("OutQuantity", kAll) + of("OutQuantity", kShare),
        From(run),
        " Left Join Rdrecords01 Rdrecords On Rdrecords.AutoID = [" + run.strZgTable + "].ID",
        " Left Join Rdrecord01 Rdrecord on rdrecord.id=rdrecords.id",
        Where(run, "01", calMethod),
    });
}

std::string UpdateVendorManagedMoney(const EstimateRun& run, CalMethod calMethod)
{
    return JoinLines({
        "update [" + run.strZgTable + "] set",
        " QcMoney=" + Of(run, "QcQuantity", kConfirmed) + ",",
        " InMoney=" + Of(run, "InQuantity", kConfirmed) + ",",
        " OutMoney=" + Of(run, "OutQuantity", kConfirmed),
        From(run),
        " Left Join PU_v_VMIUsedVouchs On PU_v_VMIUsedVouchs.AutoID = [" + run.strZgTable + "].ID",
        Where(run, "70", calMethod),
    });
}

}  // namespace kavelin
