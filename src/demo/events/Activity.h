// A kind of business that the demo company does: events that make documents and post them.
#pragma once

#include "demo/Random.h"
#include "demo/books/Books.h"
#include "demo/company/Company.h"
#include "demo/company/Stockroom.h"
#include "demo/events/TransitLines.h"
#include "demo/profiles/Profile.h"

#include <chrono>
#include <memory>
#include <vector>

namespace kavelin::demo {

// What every activity works with.
struct Business {
    const Profile& profile;
    const Company& company;
    Stockroom& stock;
    Books& books;
    Random& random;
    TransitLines transit = {};
};

class Activity {
  public:
    virtual ~Activity() = default;

    // How often it is its turn beside the others; 0: never.
    virtual int Weight() const = 0;

    // Before the first month: what the company comes into the year with (open estimates, goods in transit).
    virtual void OpenYear() {}

    // On the first working day of a month, before anything else.
    virtual void BeginMonth(std::chrono::sys_days) {}

    // One event: a document of one to some six lines, or the next document of a business begun earlier, whichever
    // is due. Does nothing where nothing can be done (no stock, nothing due).
    virtual void Act(std::chrono::sys_days day) = 0;

    // On the last working day of a month, behind everything else. Not in the last month of the ledger, which
    // is still open.
    virtual void EndMonth(std::chrono::sys_days) {}

  protected:
    explicit Activity(Business& business) : objBusiness(business) {}
    Business& objBusiness;
};

// Those of the profile, in a fixed order.
std::vector<std::unique_ptr<Activity>> MakeActivities(Business& business);

}  // namespace kavelin::demo
