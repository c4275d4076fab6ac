#include "demo/Simulation.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <memory>
#include <numeric>
#include <stdexcept>
#include <vector>

namespace kavelin::demo {

namespace {

using namespace std::chrono;

// How busy the months are beside one another.
constexpr std::array<std::int64_t, 12> kMonthWeights = {7, 5, 9, 8, 8, 9, 8, 8, 9, 8, 9, 10};

// Of the last month's work, so much is posted.
constexpr std::int64_t kPostedPercent = 65;

std::vector<sys_days> WorkingDays(int monthNumber)
{
    const year_month_day_last last{year(kLedgerYear),
                                   month_day_last(month(static_cast<unsigned>(monthNumber)))};
    std::vector<sys_days> days;
    for (sys_days day = sys_days(last.year() / last.month() / 1); day <= sys_days(last);
         day += std::chrono::days(1))
        if (const weekday of(day); of != Saturday && of != Sunday)
            days.push_back(day);
    return days;
}

// Ledger rows that there should be at the end of each month beyond the openings, if all were posted.
std::array<std::int64_t, 12> TargetsOf(std::int64_t movements)
{
    // The part of the last month that is not posted comes on top.
    const std::int64_t posted =
        std::accumulate(kMonthWeights.begin(), kMonthWeights.end() - 1, std::int64_t{0}) * 100 +
        kMonthWeights.back() * kPostedPercent;
    std::array<std::int64_t, 12> targets{};
    std::int64_t weights = 0;
    for (std::size_t i = 0; i < targets.size(); ++i) {
        weights += kMonthWeights[i];
        targets[i] = movements * weights * 100 / posted;
    }
    return targets;
}

// Whose turn it is, by weight.
class Turns {
  public:
    explicit Turns(const std::vector<std::unique_ptr<Activity>>& activities) : lstActivities(activities)
    {
        for (const auto& activity : activities)
            arrSums.push_back(lngAll += activity->Weight());
        if (lngAll == 0)
            throw std::logic_error("A company without business.");
    }

    Activity& Next(Random& random) const
    {
        const auto chosen = std::ranges::upper_bound(arrSums, random.Between(0, lngAll - 1));
        return *lstActivities[static_cast<std::size_t>(chosen - arrSums.begin())];
    }

  private:
    const std::vector<std::unique_ptr<Activity>>& lstActivities;
    std::vector<std::int64_t> arrSums;
    std::int64_t lngAll = 0;
};

}  // namespace

void PlayYear(Business& business, std::int64_t lines, const Progress& progress)
{
    Books& books = business.books;
    const std::vector<std::unique_ptr<Activity>> activities = MakeActivities(business);
    const Turns turns(activities);
    const auto tell = [&] {
        if (progress)
            progress(books.Posted(), lines);
    };

    for (const auto& activity : activities)
        activity->OpenYear();
    const std::int64_t openings = books.Posted();
    const std::array<std::int64_t, 12> targets = TargetsOf(lines - openings);

    std::int64_t begun = 0;           // target at the end of the month before
    std::int64_t turnsOfPosting = 0;  // and how many turns brought how many rows, for when nothing is posted
    for (int month = 1; month <= 12; ++month) {
        const bool last = month == 12;
        const std::vector<sys_days> days = WorkingDays(month);
        const std::int64_t target = targets[static_cast<std::size_t>(month - 1)];
        books.OpenMonth(month);
        for (const auto& activity : activities)
            activity->BeginMonth(days.front());

        for (std::size_t i = 0; i < days.size(); ++i) {
            const std::int64_t wanted = begun + (target - begun) * static_cast<std::int64_t>(i + 1) /
                                                    static_cast<std::int64_t>(days.size());
            const std::int64_t rowsAtStart = books.Posted() - openings;
            // An activity can find nothing to do; a day of such turns comes to an end.
            std::int64_t turnsLeft = 40 * std::max<std::int64_t>(wanted - rowsAtStart, 1);
            while (books.CanPost() && books.Posted() - openings < wanted && turnsLeft-- > 0) {
                turns.Next(business.random).Act(days[i]);
                ++turnsOfPosting;
                if (turnsOfPosting % 256 == 0)
                    tell();
            }
            if (!books.CanPost()) {
                const std::int64_t rows = std::max<std::int64_t>(books.Posted() - openings, 1);
                std::int64_t unposted =
                    (wanted - std::max(rowsAtStart, lines - openings)) * turnsOfPosting / rows;
                for (; unposted > 0; --unposted)
                    turns.Next(business.random).Act(days[i]);
            }
        }
        if (!last)
            for (const auto& activity : activities)
                activity->EndMonth(days.back());
        books.CloseMonth(!last);
        begun = target;
        tell();
    }
    books.Finish();
}

}  // namespace kavelin::demo
