#include "demo/books/Valuation.h"

#include "demo/company/Stockroom.h"

#include <stdexcept>
#include <string>

namespace kavelin::demo {

namespace {

// Its part of what the movement cost that it follows.
std::int64_t CostFromSource(const Movement& movement, std::span<const Movement> month)
{
    return movement.part.Of(month[static_cast<std::size_t>(movement.source)].cost);
}

}  // namespace

std::int64_t CostPart::Of(std::int64_t cost) const
{
    return Share(cost, after, total) - Share(cost, before, total);
}

Balance Valuation::Excess() const
{
    Balance excess;
    if (!IsPossible(objLeft.quantity, objLeft.amount + objLeft.difference)) {
        excess.amount = objLeft.amount - AtPrice(objLeft.quantity);
        excess.difference = objLeft.difference;
    }
    return excess;
}

void Valuation::TakeOff(const Balance& excess)
{
    objLeft.amount -= excess.amount;
    objLeft.difference -= excess.difference;
}

void Valuation::Book(const Movement& movement)
{
    const std::int64_t sign = movement.receipt ? 1 : -1;
    objLeft.quantity += sign * movement.quantity;
    objLeft.amount += sign * (movement.cost - movement.difference);
    objLeft.difference += sign * movement.difference;
}

std::int64_t Valuation::LastCost(std::int64_t quantity) const
{
    return lngLastQuantity > 0 ? Share(lngLastAmount, quantity, lngLastQuantity) : AtPrice(quantity);
}

bool Valuation::IsPossible(std::int64_t quantity, std::int64_t amount) const
{
    const std::int64_t sign = quantity < 0 ? -1 : 1;
    const std::int64_t atPrice = sign * AtPrice(quantity);
    return quantity != 0 && sign * amount * 10 >= atPrice * 3 && sign * amount <= atPrice * 3;
}

bool Valuation::IsSound(std::int64_t quantity, std::int64_t amount) const
{
    const std::int64_t atPrice = AtPrice(quantity);
    return quantity > 0 && amount * 3 >= atPrice * 2 && amount * 2 <= atPrice * 3;
}

void Valuation::Remember(std::int64_t quantity, std::int64_t amount)
{
    if (IsSound(quantity, amount)) {
        lngLastQuantity = quantity;
        lngLastAmount = amount;
    }
}

std::int64_t Valuation::AtPrice(std::int64_t quantity) const
{
    return AmountOf(quantity, lngPrice);
}

void Valuation::ClearRest(std::span<Movement> month)
{
    if (objLeft.quantity != 0 || (objLeft.amount == 0 && objLeft.difference == 0))
        return;
    for (auto movement = month.rbegin(); movement != month.rend(); ++movement) {
        const std::int64_t rest = objLeft.amount + objLeft.difference;
        const bool free = !movement->receipt && !movement->known && movement->source == Movement::kNobody &&
                          !movement->shared && movement->quantity > 0;
        if (free && IsPossible(movement->quantity, movement->cost + rest)) {
            movement->cost += rest;
            movement->difference += objLeft.difference;
            objLeft = {};
            return;
        }
    }
}

void MonthlyAverage::Cost(std::span<Movement> month)
{
    std::int64_t quantity = objLeft.quantity;
    std::int64_t amount = objLeft.amount;
    for (const Movement& movement : month)
        if (movement.known) {
            const std::int64_t sign = movement.receipt ? 1 : -1;
            quantity += sign * movement.quantity;
            amount += sign * movement.cost;
        }
    Remember(quantity, amount);

    for (Movement& movement : month) {
        if (movement.source != Movement::kNobody)
            movement.cost = CostFromSource(movement, month);
        else if (!movement.known)
            movement.cost = LastCost(movement.quantity);
        Book(movement);
    }
    ClearRest(month);
}

void PerpetualValuation::Cost(std::span<Movement> month)
{
    for (Movement& movement : month) {
        const bool last = movement.quantity > 0 && movement.quantity == objLeft.quantity &&
                          IsPossible(objLeft.quantity, objLeft.amount);
        if (movement.source != Movement::kNobody)
            movement.cost = CostFromSource(movement, month);
        else if (!movement.known)
            movement.cost = last ? objLeft.amount : IssueCost(movement.quantity);
        Moved(movement);
        Book(movement);
        Remember(objLeft.quantity, objLeft.amount);
    }
}

std::int64_t MovingAverage::IssueCost(std::int64_t quantity)
{
    return IsSound(objLeft.quantity, objLeft.amount) ? Share(objLeft.amount, quantity, objLeft.quantity)
                                                     : LastCost(quantity);
}

void PlannedPrice::Cost(std::span<Movement> month)
{
    std::int64_t planned = objLeft.amount;
    std::int64_t difference = objLeft.difference;
    for (const Movement& movement : month)
        if (movement.known) {
            const std::int64_t sign = movement.receipt ? 1 : -1;
            planned += sign * AtPrice(movement.quantity);
            difference += sign * (movement.cost - AtPrice(movement.quantity));
        }
    // No rate comes from goods that are as good as gone.
    const bool sound = planned > 0 && 2 * difference <= planned && -2 * difference <= planned;

    for (Movement& movement : month) {
        const std::int64_t atPrice = AtPrice(movement.quantity);
        if (movement.source != Movement::kNobody)
            movement.cost = CostFromSource(movement, month);
        else if (!movement.known)
            movement.cost = atPrice + (sound ? Share(difference, atPrice, planned) : 0);
        movement.difference = movement.cost - atPrice;
        Book(movement);
    }
    ClearRest(month);
}

bool IsPlanned(std::string_view method)
{
    return method == kPlannedPrice || method == kRetailPrice;
}

std::unique_ptr<Valuation> MakeValuation(std::string_view method, std::int64_t price)
{
    using End = LayeredValuation::End;
    if (method == kMonthlyAverage)
        return std::make_unique<MonthlyAverage>(price);
    if (method == kMovingAverage)
        return std::make_unique<MovingAverage>(price);
    if (method == kFirstIn)
        return std::make_unique<LayeredValuation>(price, End::Oldest);
    if (method == kLastIn)
        return std::make_unique<LayeredValuation>(price, End::Newest);
    if (IsPlanned(method))
        return std::make_unique<PlannedPrice>(price);
    throw std::logic_error("No valuation is called " + std::string(method) + ".");
}

}  // namespace kavelin::demo
