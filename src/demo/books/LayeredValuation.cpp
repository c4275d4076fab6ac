#include "demo/books/Valuation.h"
#include "demo/company/Stockroom.h"

#include <algorithm>

namespace kavelin::demo {

std::int64_t LayeredValuation::IssueCost(std::int64_t quantity)
{
    const auto layer = [this](std::size_t i) -> const Layer& {
        return arrLayers[objIssues == End::Oldest ? i : arrLayers.size() - 1 - i];
    };
    if (quantity < 0 && !arrLayers.empty())  // comes back at the cost of what would go out next
        return Share(layer(0).amount, quantity, layer(0).quantity);

    std::int64_t cost = 0;
    for (std::size_t i = 0; i < arrLayers.size() && quantity > 0; ++i) {
        const std::int64_t taken = std::min(quantity, layer(i).quantity);
        cost += Share(layer(i).amount, taken, layer(i).quantity);
        quantity -= taken;
    }
    return cost + LastCost(quantity);
}

void LayeredValuation::Moved(const Movement& movement)
{
    const std::int64_t quantity = movement.quantity;
    if (movement.receipt && quantity > 0)
        AddLayer({quantity, movement.cost}, End::Newest);
    else if (movement.receipt && quantity < 0)
        DropLayers(-quantity, End::Newest);
    else if (quantity > 0)
        DropLayers(quantity, objIssues);
    else if (quantity < 0)
        AddLayer({-quantity, -movement.cost}, objIssues);
    else if (!arrLayers.empty()) {
        // An amount alone belongs to the goods that came last, as long as they stay worth something.
        const std::int64_t amount = movement.receipt ? movement.cost : -movement.cost;
        if (arrLayers.back().amount + amount > 0)
            arrLayers.back().amount += amount;
    }
}

void LayeredValuation::AddLayer(Layer layer, End end)
{
    const std::int64_t due = std::min(lngOwed, layer.quantity);
    if (due > 0) {
        lngOwed -= due;
        layer.amount -= Share(layer.amount, due, layer.quantity);
        layer.quantity -= due;
    }
    if (layer.quantity > 0)
        arrLayers.insert(end == End::Oldest ? arrLayers.begin() : arrLayers.end(), layer);
}

void LayeredValuation::DropLayers(std::int64_t quantity, End end)
{
    while (quantity > 0 && !arrLayers.empty()) {
        Layer& layer = end == End::Oldest ? arrLayers.front() : arrLayers.back();
        if (layer.quantity <= quantity) {
            quantity -= layer.quantity;
            end == End::Oldest ? arrLayers.pop_front() : arrLayers.pop_back();
        } else {
            layer.amount -= Share(layer.amount, quantity, layer.quantity);
            layer.quantity -= quantity;
            quantity = 0;
        }
    }
    lngOwed += quantity;
}

// What is left is worth one layer from then on.
void LayeredValuation::TakeOff(const Balance& excess)
{
    Valuation::TakeOff(excess);
    arrLayers.clear();
    if (objLeft.quantity > 0)
        arrLayers.push_back({objLeft.quantity, objLeft.amount});
}

}  // namespace kavelin::demo
