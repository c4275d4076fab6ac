#include "demo/events/SaleActivity.h"

#include <iterator>

namespace kavelin::demo {

namespace {

struct WeightedPlan {
    SalePlan plan;
    int weight;
};

// The first come first, so that a small ledger holds some of each.
constexpr WeightedPlan kPlans[] = {
    {{.invoicing = Invoicing::InParts}, 16},
    {{.back = true}, 8},
    {{.otherInvoice = true}, 4},
    {{.back = true, .otherInvoice = true}, 2},
    {{}, 50},
    {{.invoicing = Invoicing::OnePartOnly}, 6},
    {{.invoicing = Invoicing::Never}, 6},
    {{.invoiceFirst = true}, 8},
};

}  // namespace

SaleActivity::SaleActivity(Business& business, const SaleKind& kind)
    : Activity(business),
      intWeight(WeightOf(business.profile, kind.share)),
      objChain(business, kind),
      objRota(kPlans)
{
}

void SaleActivity::Act(std::chrono::sys_days day)
{
    if (!objChain.Continue(day))
        objChain.Begin(day, NextPlan());
}

// A return waits until there is something to return.
SalePlan SaleActivity::NextPlan()
{
    if (objChain.HasSold() && !arrPostponed.empty()) {
        const SalePlan plan = arrPostponed.back();
        arrPostponed.pop_back();
        return plan;
    }
    const SalePlan plan = kPlans[objRota.Next(objBusiness.random)].plan;
    if (!plan.back || objChain.HasSold())
        return plan;
    if (arrPostponed.size() < std::size(kPlans))
        arrPostponed.push_back(plan);
    return {};
}

int WeightOf(const Profile& profile, int share)
{
    return profile.edition == Edition::Industrial ? share : 2 * share;
}

}  // namespace kavelin::demo
