// What the goods of a pool cost: one class a method.
//
// Quantities are in hundredths of the unit, amounts in cents. Reversals and returns can take most of a pool
// out, or more than there is, before the goods are booked again. What is left then has no sound unit cost,
// and goods cost what they did last, or the item's price.
#pragma once

#include "demo/company/Company.h"

#include <cstdint>
#include <deque>
#include <memory>
#include <span>
#include <string_view>

namespace kavelin::demo {

inline constexpr std::string_view kLastIn = "后进先出法";

// What is left in a pool. The difference is to the planned price and lies beside the amount.
struct Balance {
    std::int64_t quantity = 0;
    std::int64_t amount = 0;
    std::int64_t difference = 0;
};

// The part of a cost that falls to one of those who share it: from `before` to `after` of `total`, so that
// all parts together are the whole.
struct CostPart {
    std::int64_t before = 0, after = 1, total = 1;

    std::int64_t Of(std::int64_t cost) const;
};

// A receipt or an issue of a pool. Negative numbers take it back.
struct Movement {
    static constexpr std::int32_t kNobody = -1;

    bool receipt = true;
    bool known = false;   // whether the cost is given; that of a receipt always is, or comes from `source`
    bool shared = false;  // another movement of the pool has this one as its source
    std::int32_t source = kNobody;  // the movement of this pool and month whose cost this one takes
    CostPart part;                  // ... and which part of it
    std::int64_t quantity = 0;      // 0 for an amount alone
    std::int64_t cost = 0;          // differences included
    std::int64_t difference = 0;    // the part of the cost that is one
};

class Valuation {
  public:
    explicit Valuation(std::int64_t price) : lngPrice(price) {}
    virtual ~Valuation() = default;

    // Fills the costs of a month's movements, which stand in the order of their posting, and books them.
    virtual void Cost(std::span<Movement> month) = 0;

    // What the goods left over should be worth less: all where none are left, and what is beyond the price
    // where they can't cost what they are worth. Its quantity is 0.
    Balance Excess() const;
    // Books an issue of that amount alone.
    virtual void TakeOff(const Balance& excess);

  protected:
    void Book(const Movement& movement);

    // Whether goods may cost that: three tenths of their price to three times of it. Beyond are what
    // reversals have left.
    bool IsPossible(std::int64_t quantity, std::int64_t amount) const;
    // Whether there are goods, at two thirds of their price to one and a half times of it: others may be
    // costed by these.
    bool IsSound(std::int64_t quantity, std::int64_t amount) const;
    // Goods at their last known unit cost, that of the last quantity and amount remembered. Those that aren't
    // sound are not.
    std::int64_t LastCost(std::int64_t quantity) const;
    void Remember(std::int64_t quantity, std::int64_t amount);

    std::int64_t AtPrice(std::int64_t quantity) const;

    // Gives what a month without goods at its end has left over to its last issue. An issue whose cost
    // another movement of the pool has taken stays as it is.
    void ClearRest(std::span<Movement> month);

    Balance objLeft;

  private:
    std::int64_t lngPrice;
    std::int64_t lngLastQuantity = 0;
    std::int64_t lngLastAmount = 0;
};

// 全月平均法: what was there and all receipts of the month, by their quantity. Goods that go from one place of
// the pool to another have no part in it.
class MonthlyAverage : public Valuation {
  public:
    using Valuation::Valuation;
    void Cost(std::span<Movement> month) override;
};

// A method that costs each movement when its turn comes.
class PerpetualValuation : public Valuation {
  public:
    using Valuation::Valuation;
    void Cost(std::span<Movement> month) override;

  protected:
    // What an issue costs that does not take the last of the goods, at whatever balance there is.
    virtual std::int64_t IssueCost(std::int64_t quantity) = 0;
    // Told of every movement, once its cost is known, before it is booked.
    virtual void Moved(const Movement&) {}
};

// 移动平均法: what is there at that moment, by its quantity.
class MovingAverage : public PerpetualValuation {
  public:
    using PerpetualValuation::PerpetualValuation;

  protected:
    std::int64_t IssueCost(std::int64_t quantity) override;
};

// 先进先出法 and 后进先出法: each receipt is a layer; issues take the oldest ones or the newest. What goes back
// to the vendor is taken from the newest; if it cost something else, the rest stays in the pool until it is
// empty.
class LayeredValuation : public PerpetualValuation {
  public:
    enum class End { Oldest, Newest };

    LayeredValuation(std::int64_t price, End issues) : PerpetualValuation(price), objIssues(issues) {}
    void TakeOff(const Balance& excess) override;

  protected:
    std::int64_t IssueCost(std::int64_t quantity) override;
    void Moved(const Movement& movement) override;

  private:
    struct Layer {
        std::int64_t quantity, amount;
    };

    void AddLayer(Layer layer, End end);
    void DropLayers(std::int64_t quantity, End end);

    End objIssues;
    std::deque<Layer> arrLayers;  // the oldest first
    std::int64_t lngOwed = 0;     // quantity that went out while no layer was there
};

// 计划价法 and 售价法: at the planned price; what the goods cost beside it goes along in proportion, at the rate
// of the month.
class PlannedPrice : public Valuation {
  public:
    using Valuation::Valuation;
    void Cost(std::span<Movement> month) override;
};

bool IsPlanned(std::string_view method);

// The valuation of an empty pool. Throws std::logic_error for an unknown method.
std::unique_ptr<Valuation> MakeValuation(std::string_view method, std::int64_t price);

}  // namespace kavelin::demo
