// The stock summary as its reader sees it on the demo companies: groups with a balance at the end, beside the
// books.
#include "demo/profiles/Profile.h"
#include "frame/Text.h"
#include "host/FilterInput.h"
#include "host/FilterTemplate.h"
#include "host/ReportRun.h"
#include "host/Reports.h"
#include "host/definition/StockView.h"
#include "reports/AccountReport.h"
#include "reports/StockBook.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace kavelin::test {

namespace {

const Days kMonth = {"2008-11-01", "2008-11-30"};
const std::string kPeriod = "dVouDate=2008-11-01..2008-11-30";

// A group, or the totals of all.
struct Group {
    StockMove moves;
    Stock closing;
};

std::string TextOf(const Stock& stock)
{
    return std::to_string(stock.quantity) + "/" + std::to_string(stock.money) + "/" +
           std::to_string(stock.difference);
}

std::string TextOf(const Group& group)
{
    return TextOf(group.moves.opening) + " + " + TextOf(group.moves.in) + " - " + TextOf(group.moves.out) +
           " = " + TextOf(group.closing);
}

std::string WithoutOrder(const std::string& select)
{
    return select.substr(0, select.rfind("\r\norder by"));
}

// The sum of the columns of `view` whose names end so: one, or those of all classes.
std::string Columns(const host::ViewSelects& view, const std::string& ending)
{
    std::string sum;
    for (const host::ViewColumn& column : view.columns)
        if (column.name.ends_with(ending))
            sum += (sum.empty() ? "[" : "+[") + ReplaceAll(column.name, "]", "]]") + "]";
    return sum.empty() ? "0" : sum;
}

std::string Amounts(const host::ViewSelects& view)
{
    std::string list;
    for (const char* side : {"Qc", "In", "Out", "Qm"})
        list += ", cast(" + Columns(view, std::string(side) + "Quantity") + " as decimal(20,4)), cast(" +
                Columns(view, std::string(side) + "Price") + " as decimal(20,2)), cast(" +
                Columns(view, std::string(side) + "Dif") + " as decimal(20,2))";
    return list;
}

class StockGroupsOf : public testing::TestWithParam<std::string> {
  protected:
    using Groups = std::map<StockPlace, Group>;

    // By item and warehouse, and what stands below them.
    Groups Shown(const std::vector<std::string>& settings, Group& totals)
    {
        host::FilterInput input(host::TemplateOf("stock-summary"), host::ValuePolicy::Checked);
        for (const std::string& setting : settings)
            input.Set(setting);
        objRun.Run(host::FindReport("stock-summary"), input);
        const host::ViewSelects view =
            host::MakeStockView(input, "item,warehouse")->Of(objRun.Account(), objRun.TableName());
        Groups groups;
        for (const auto& [place, group] : Read("cInvCode, cwhcode" + Amounts(view), WithoutOrder(view.rows)))
            EXPECT_TRUE(groups.emplace(place, group).second) << place.item << " has two rows";
        totals = Read("N'', N''" + Amounts(view), view.totals).at(0).second;
        return groups;
    }

    // What the ledger and the documents of `book` leave there.
    static Groups Wanted(const StockBook& book, const std::vector<DocumentRow>& documents)
    {
        StockMoves moves = book.Posted(kMonth, [](const LedgerRow& row) { return !IsDirect(row.business); });
        AddDocuments(moves, documents);
        Groups groups;
        for (const auto& [place, move] : moves)
            groups[place] = {move, move.Closing()};
        return groups;
    }

    static void ExpectSame(const Groups& shown, const Groups& wanted, const std::string& what)
    {
        for (const auto& [place, group] : wanted) {
            const auto found = shown.find(place);
            EXPECT_EQ(found == shown.end() ? "nothing" : TextOf(found->second), TextOf(group))
                << what << ": " << place.item << " in " << place.warehouse;
        }
        for (const auto& [place, group] : shown)
            EXPECT_TRUE(wanted.contains(place) || TextOf(group) == TextOf(Group()))
                << what << ": " << place.item << " in " << place.warehouse << " is " << TextOf(group);
    }

    static Group Sum(const Groups& groups)
    {
        Group sum;
        for (const auto& entry : groups) {
            sum.moves.opening.Add(entry.second.moves.opening);
            sum.moves.in.Add(entry.second.moves.in);
            sum.moves.out.Add(entry.second.moves.out);
            sum.closing.Add(entry.second.closing);
        }
        return sum;
    }

    const demo::Profile& objProfile = *demo::FindProfile(GetParam());
    host::ReportRun objRun{LoginTo(AccountOf(objProfile), "zh-CN"), LoggedConnections()};

  private:
    std::vector<std::pair<StockPlace, Group>> Read(const std::string& list, const std::string& select)
    {
        const auto rows =
            objRun.Account().OpenRecordset("select " + list + " from (" + select + ") v",
                                           CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
        std::vector<std::pair<StockPlace, Group>> groups;
        for (; !rows->Eof(); rows->MoveNext()) {
            const auto stock = [&](int at) {
                // Totals of no groups are null.
                const auto number = [&](int field) {
                    const Value value = rows->Field(field);
                    return value.IsNull() ? 0 : TenThousandths(ToText(value));
                };
                return Stock{number(at), number(at + 1) / 100, number(at + 2) / 100};
            };
            groups.push_back({{ToText(rows->Field(0)), ToText(rows->Field(1))},
                              {{stock(2), stock(5), stock(8)}, stock(11)}});
        }
        return groups;
    }
};

bool IsStock(const DocumentRow& row)
{
    return !row.isDirect;
}

}  // namespace

TEST_P(StockGroupsOf, CloseWithTheBalanceOfTheBooks)
{
    AccountReport report(objProfile, "stock-summary", {kPeriod});
    const StockBook book(report);
    Group totals;
    const Groups posted = Shown({kPeriod}, totals);
    EXPECT_GT(posted.size(), 30u);
    ExpectSame(posted, Wanted(book, {}), "posted");
    EXPECT_EQ(TextOf(totals), TextOf(Sum(posted)));

    // Which sales of `invoices` are shown is a story of its own.
    if (GetParam() == "invoices")
        return;
    const Groups all = Shown({kPeriod, "vouEstate=已记账单据,未记账单据"}, totals);
    ExpectSame(all, Wanted(book, book.Unposted(kMonth, IsStock)), "with documents");
    EXPECT_EQ(TextOf(totals), TextOf(Sum(all)));
}

TEST_P(StockGroupsOf, SayTheSameByClassesInColumns)
{
    Group totals, totalsByClass;
    const std::string states = "vouEstate=已记账单据,未记账单据";
    const Groups plain = Shown({kPeriod, states}, totals);
    for (const char* grade : {"rdGrade=1", "rdGrade=2"}) {
        ExpectSame(Shown({kPeriod, states, grade}, totalsByClass), plain, grade);
        EXPECT_EQ(TextOf(totalsByClass), TextOf(totals)) << grade;
    }
}

TEST_P(StockGroupsOf, AreThoseThatMeetTheConditionsOnBalancesAndBusiness)
{
    AccountReport report(objProfile, "stock-summary", {kPeriod});
    const StockBook book(report);
    // Places with receipts and with issues, also where these came to nothing.
    std::set<StockPlace> received, issued;
    for (const LedgerRow& row : book.Ledger())
        if (row.type != "33" && row.month != 0 && row.day >= kMonth.from && row.day <= kMonth.to &&
            row.amount != Stock())
            (row.receipt ? received : issued).insert(row.place);

    Group totals;
    const Groups all = Shown({kPeriod}, totals);
    const struct {
        std::vector<std::string> settings;
        std::function<bool(const StockPlace&, const Group&)> holds;
    } cases[] = {
        {{"EndNum=大于零"}, [](const auto&, const Group& g) { return g.closing.quantity > 0; }},
        {{"EndNum=等于零"}, [](const auto&, const Group& g) { return g.closing.quantity == 0; }},
        {{"EndNum=小于零"}, [](const auto&, const Group& g) { return g.closing.quantity < 0; }},
        {{"EndNum=大于零", "EndNum=小于零"},
         [](const auto&, const Group& g) { return g.closing.quantity != 0; }},
        {{"EndPrice=大于零"}, [](const auto&, const Group& g) { return g.closing.money > 0; }},
        {{"EndPrice=等于零", "EndPrice=小于零"},
         [](const auto&, const Group& g) { return g.closing.money <= 0; }},
        {{"incompareout=入库大于出库"},
         [](const auto&, const Group& g) { return g.moves.in.quantity > g.moves.out.quantity; }},
        {{"incompareout=入库小于出库", "EndNum=大于零"},
         [](const auto&, const Group& g) {
             return g.moves.in.quantity < g.moves.out.quantity && g.closing.quantity > 0;
         }},
        {{"busEstate=发生业务"},
         [&](const StockPlace& p, const Group&) { return received.contains(p) || issued.contains(p); }},
        {{"busEstate=出库未入库"},
         [&](const StockPlace& p, const Group&) { return !received.contains(p) && issued.contains(p); }},
        {{"busEstate=入库未出库"},
         [&](const StockPlace& p, const Group&) { return received.contains(p) && !issued.contains(p); }},
        {{"busEstate=未发生"},
         [&](const StockPlace& p, const Group&) { return !received.contains(p) && !issued.contains(p); }},
    };
    for (const auto& c : cases) {
        Groups wanted;
        for (const auto& [place, group] : all)
            if (c.holds(place, group))
                wanted.emplace(place, group);
        std::vector<std::string> settings = c.settings;
        settings.push_back(kPeriod);
        const Groups shown = Shown(settings, totals);
        EXPECT_EQ(shown.size(), wanted.size()) << c.settings.front();
        ExpectSame(shown, wanted, c.settings.front());
        EXPECT_EQ(TextOf(totals), TextOf(Sum(wanted))) << c.settings.front();
    }
}

INSTANTIATE_TEST_SUITE_P(Profiles, StockGroupsOf, testing::ValuesIn(ProfileNames()),
                         [](const auto& tested) { return PlainName(tested.param); });

}  // namespace kavelin::test
