#include "demo/books/Books.h"

#include "demo/RowValues.h"
#include "demo/books/AccountingVouchers.h"
#include "demo/books/AreaSample.h"
#include "demo/books/ClosingAdjustments.h"
#include "demo/books/CostKeys.h"
#include "demo/books/Documents.h"
#include "demo/books/MonthSummary.h"
#include "demo/books/PlannedPrices.h"
#include "demo/books/StandardCosts.h"
#include "demo/books/StockLedger.h"
#include "demo/books/TransitLedger.h"

#include <array>
#include <chrono>
#include <stdexcept>

namespace kavelin::demo {

namespace {

constexpr std::string_view kSettlementColumns[] = {"ID", "iSVQuantity", "iSVPrice", "MaterialFee"};

std::chrono::sys_days LastDayOf(int month)
{
    using namespace std::chrono;
    return sys_days(year(kLedgerYear) / std::chrono::month(static_cast<unsigned>(month)) / last);
}

}  // namespace

struct Books::State {
    State(const Profile& profile, const Company& company, const Stockroom& stockroom, std::int64_t lines,
          RowSink& to)
        : sink(to),
          rows(lines),
          keys(profile, company, stockroom),
          documents(profile, company, to),
          settlements(to.Open("Pursettlevouchs", kSettlementColumns)),
          vouchers(to),
          standards(profile, vouchers, to),
          summary(keys),
          stock({keys, documents, vouchers, standards, summary, sample}, to),
          transit({keys, documents, vouchers, standards, stock}, to)
    {
    }

    // Costs and writes what is posted in the month.
    void Write()
    {
        transit.CostRows();
        stock.Write(month);
        transit.Write(month);
        documents.Write();
    }

    RowSink& sink;
    std::int64_t rows;
    int month = 0;
    CostKeys keys;
    Documents documents;
    RowTable& settlements;
    std::int32_t settlementCount = 0;
    AccountingVouchers vouchers;
    StandardCosts standards;
    MonthSummary summary;
    AreaSample sample;
    StockLedger stock;
    TransitLedger transit;
};

Books::Books(const Profile& profile, const Company& company, const Stockroom& stock, std::int64_t lines,
             RowSink& sink)
    : objState(std::make_unique<State>(profile, company, stock, lines, sink))
{
}

Books::~Books() = default;

Document Books::NewDocument(const Document& head)
{
    return objState->documents.Add(head);
}

std::int32_t Books::NewOrder()
{
    return objState->documents.NewOrder();
}

std::int32_t Books::AddLine(const Document& document, const LineEntry& entry)
{
    return objState->documents.AddLine(document, entry);
}

bool Books::CanPost(int rows) const
{
    return objState->stock.Posted() + rows <= objState->rows;
}

std::int64_t Books::Posted() const
{
    return objState->stock.Posted();
}

std::int32_t Books::Post(const StockEntry& entry)
{
    if (!CanPost())
        throw std::logic_error("A row is posted behind the last one.");
    return objState->stock.Post(entry);
}

void Books::PostTransit(const TransitEntry& entry)
{
    objState->transit.Post(entry);
}

std::int64_t Books::QuantityInTransit(std::string_view, std::int32_t sourceLine) const
{
    return objState->transit.Quantity(sourceLine);
}

std::int32_t Books::AddSettlement(std::int64_t quantity, std::int64_t price, std::int64_t materialFee)
{
    const std::int32_t number = ++objState->settlementCount;
    objState->settlements.Add(std::array<Value, std::size(kSettlementColumns)>{
        number, Quantity(quantity), Money(price), Money(materialFee)});
    return number;
}

void Books::OpenMonth(int month)
{
    State& state = *objState;
    if (month != state.month + 1)
        throw std::logic_error("Months are opened one behind the other.");
    if (state.month == 0) {
        state.stock.CostRows();
        state.Write();
    }
    state.month = month;
    state.vouchers.OpenMonth(month);
}

void Books::CloseMonth(bool final)
{
    State& state = *objState;
    state.stock.CostRows();
    if (final)
        PostClosingAdjustments(state.keys, state.documents, state.stock, LastDayOf(state.month),
                               state.rows - state.stock.Posted());
    state.Write();
}

void Books::Finish()
{
    objState->documents.Write();
    objState->summary.Write(objState->sink);
    WritePlannedPrices(objState->keys, objState->sink);
    objState->sample.Write(objState->sink);
}

}  // namespace kavelin::demo
