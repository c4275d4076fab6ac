#include "filter/FilterDispatch.h"

#include "filter/Checks.h"
#include "filter/FilterIdentities.h"
#include "filter/Openings.h"
#include "filter/ReportViews.h"
#include "filter/ValueChanges.h"

namespace kavelin {

namespace {

// clang-format off
constexpr FilterRoutines kDialogs[] = {
    // identity       opening                  check                    change of a value        views
    {kJournal,        InitFilterJournal,       CheckFilterJournal,      OnChangeJournal},
    {kPriceAnalysis,  InitFilterJournal,       CheckFilterPrice,        nullptr},
    {kTurnover,       InitFilterTurnover,      CheckFilterTurnover,     nullptr},
    {kAbc,            InitFilterABC,           CheckFilterABC,          OnChangeABC},
    {kGoodsSummary,   InitFilterGoodsSummary,  CheckFilterGoodsSummary, OnChangeGoodsSummary},
    {kEstimate,       InitFilterEstimate,      CheckFilterEstimate,     OnChangeEstimate},
    {kStockSummary,   InitFilterStockSummary,  CheckFilterStockSummary, nullptr,                 StockSummaryFirstView, StockSummaryViewChange, true},
    {kCapitalShare,   InitFilterTurnover,      nullptr,                 nullptr},
    {kStandardCost,   InitFilterStandardCost,  nullptr,                 OnChangeStandardCost,    StandardCostFirstView, StandardCostViewChange},
    {kDetailLedger,   InitFilterDetailLedger,  CheckFilterDetailLedger, OnChangeDetailLedger},
    {kCostItem,       InitFilterCostItem,      CheckFilterCostItem,     OnChangeCostItem},
    {kVoucherPosting, nullptr,                 nullptr,                 OnChangeVoucherPosting},
};
// clang-format on

constexpr FilterRoutines kUnknownDialog = {};

}  // namespace

std::span<const FilterRoutines> AllFilterRoutines()
{
    return kDialogs;
}

const FilterRoutines& RoutinesOf(std::string_view identity)
{
    for (const FilterRoutines& dialog : kDialogs)
        if (dialog.identity == identity)
            return dialog;
    return kUnknownDialog;
}

}  // namespace kavelin
