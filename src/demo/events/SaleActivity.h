// One kind of sale as a business of the company.
#pragma once

#include "demo/events/Activity.h"
#include "demo/events/Office.h"
#include "demo/events/SaleChain.h"

#include <chrono>
#include <vector>

namespace kavelin::demo {

class SaleActivity : public Activity {
  public:
    SaleActivity(Business& business, const SaleKind& kind);

    int Weight() const override { return intWeight; }

    // What is due comes before new sales.
    void Act(std::chrono::sys_days day) override;

  private:
    SalePlan NextPlan();

    int intWeight;
    SaleChain objChain;
    Rota objRota;
    std::vector<SalePlan> arrPostponed;
};

// A seller's sales are busier: nothing is made there.
int WeightOf(const Profile& profile, int share);

}  // namespace kavelin::demo
