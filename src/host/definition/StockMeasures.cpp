#include "host/definition/StockMeasures.h"

#include "frame/Text.h"
#include "host/output/TableLayout.h"

namespace kavelin::host {

namespace {

constexpr int kDifference = kName + 1;  // rank

std::string Amount(const std::string& column)
{
    return "isnull(" + column + ",0)";
}

std::string Moved(const std::string& prefix)
{
    return "sum(case when " + Amount(prefix + "Quantity") + "<>0 or " + Amount(prefix + "Price") + "<>0 or " +
           Amount(prefix + "Dif") + "<>0 then 1 else 0 end)";
}

std::string Quoted(const std::string& text)
{
    return "N'" + ReplaceAll(text, "'", "''") + "'";
}

// A balance or a movement as columns. `name` and `caption` stand before the word for what a column shows, or,
// in a heading of a class, which is long, behind it.
struct Block {
    std::string name;
    LocalText before, behind;
    StockAmounts amounts;
};

LocalText Heading(const Block& block, std::string_view chinese, std::string_view english)
{
    return {block.before.chinese + std::string(chinese) + block.behind.chinese,
            block.before.english + " " + std::string(english) + block.behind.english};
}

void Add(std::vector<StockMeasure>& measures, const Block& block, bool pieces)
{
    const StockAmounts& amounts = block.amounts;
    measures.push_back(
        {{block.name + "Quantity", Heading(block, "数量", "qty")}, StockQuantity(amounts.quantity)});
    if (pieces)
        measures.push_back(
            {{block.name + "Pieces", Heading(block, "件数", "pieces")},
             StockQuantity("case when isnull(rate,0)<>0 then (" + amounts.quantity + ")/rate else 0 end")});
    measures.push_back({{block.name + "Price", Heading(block, "金额", "amt")}, StockMoney(amounts.money)});
    measures.push_back({{block.name + "Dif", Heading(block, "差异", "diff"), false, kDifference},
                        StockMoney(amounts.difference)});
}

// What lines of the class moved on the side.
Block OfClass(const StockClass& stockClass, const std::string& side, const LocalText& sideCaption)
{
    const auto ofClass = [&](const std::string& expression) {
        return "case when isnull(cRdCode,N'')=" + Quoted(stockClass.code) + " then " + expression +
               " else 0 end";
    };
    const StockAmounts all = StockSide(side);
    const std::string code = stockClass.code.empty() ? "-" : stockClass.code;
    const std::string caption = stockClass.name.empty() ? code : code + " " + stockClass.name;
    return {caption + " " + side,
            sideCaption,
            {" " + caption, " " + caption},
            {ofClass(all.quantity), ofClass(all.money), ofClass(all.difference)}};
}

}  // namespace

StockAmounts StockSide(const std::string& prefix)
{
    return {Amount(prefix + "Quantity"), Amount(prefix + "Price"), Amount(prefix + "Dif")};
}

StockAmounts StockClosing()
{
    const StockAmounts opening = StockSide("Qc");
    const StockAmounts in = StockSide("In");
    const StockAmounts out = StockSide("Out");
    return {opening.quantity + "+" + in.quantity + "-" + out.quantity,
            opening.money + "+" + in.money + "-" + out.money,
            opening.difference + "+" + in.difference + "-" + out.difference};
}

std::string StockQuantity(const std::string& expression)
{
    return "cast(cast(sum(" + expression + ") as decimal(34,6)) as float)";
}

std::string StockMoney(const std::string& expression)
{
    return "sum(" + expression + ")";
}

std::string StockLinesReceived()
{
    return Moved("In");
}

std::string StockLinesIssued()
{
    return Moved("Out");
}

std::vector<StockMeasure> StockMeasures(bool pieces, bool byClass, const std::vector<StockClass>& classes)
{
    std::vector<StockMeasure> measures;
    Add(measures, {"Qc", {"期初", "Open"}, {}, StockSide("Qc")}, pieces);
    if (byClass) {
        for (const StockClass& stockClass : classes)
            if (stockClass.received)
                Add(measures, OfClass(stockClass, "In", {"收", "In"}), pieces);
        for (const StockClass& stockClass : classes)
            if (stockClass.issued)
                Add(measures, OfClass(stockClass, "Out", {"发", "Out"}), pieces);
    } else {
        Add(measures, {"In", {"收入", "In"}, {}, StockSide("In")}, pieces);
        Add(measures, {"Out", {"发出", "Out"}, {}, StockSide("Out")}, pieces);
    }
    Add(measures, {"Qm", {"结存", "Close"}, {}, StockClosing()}, pieces);
    return measures;
}

}  // namespace kavelin::host
