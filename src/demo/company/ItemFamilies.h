// The kinds of items that the demo company knows. Each gives one item to a small company and variants of
// it to a larger one.
#pragma once

#include "demo/company/Company.h"

#include <span>
#include <string_view>

namespace kavelin::demo {

struct ItemFamily {
    std::string_view code;  // of the family; its items are CODE-001, CODE-002 ...
    std::string_view name;
    std::string_view model;
    std::string_view itemClass;
    std::string_view unit;
    std::int64_t price;  // cents a unit
    std::int64_t lot;    // units
    int weight;
    Kept kept = Kept::Nothing;
};

std::span<const ItemFamily> ItemFamilies();

}  // namespace kavelin::demo
