// Documents and ledgers of a generated year, as the tests of the sales look at them.
#pragma once

#include "demo/MemorySink.h"
#include "demo/profiles/Profile.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kavelin::demo {

struct WrittenLine {
    std::int64_t id = 0;
    std::string kind, type, business, source, warehouse, saleType;
    int month = 0;  // 0: of the year before
    std::int64_t quantity = 0;
    std::int64_t dispatchLine = 0, invoiceLine = 0, consignmentLine = 0;
    std::string guid, guidSource;
    bool posted = false;
};

struct PostedRow {
    std::int64_t line = 0;
    std::string type, business;
    bool receipt = false;
    std::int64_t quantity = 0, cost = 0;
};

struct InTransitRow {
    std::int64_t line = 0, sourceLine = 0, outLine = 0, dispatchLine = 0;
    std::string type, sourceType, business;
    int month = 0;
    bool in = false;
    std::int64_t quantity = 0, amount = 0;
};

struct SaleYear {
    const Profile* profile = nullptr;
    std::map<std::int64_t, WrittenLine> lines;
    std::vector<PostedRow> stock;
    std::vector<InTransitRow> transit;

    // Null for an unknown line.
    const WrittenLine* Line(std::int64_t id) const;
};

// The year of a company with that profile. Each is made once.
const SaleYear& SaleYearOf(std::string_view profile, std::int64_t lines);

// Names of all profiles: together they post each kind of sale by each of its documents.
std::vector<std::string_view> ProfileNames();

// Whether a line of this kind of sale is what posts it in an account of that profile.
bool IsPostingDocument(const Profile& profile, const WrittenLine& line);

}  // namespace kavelin::demo
