#include "host/LookupSelect.h"

#include "frame/Errors.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kavelin::host {
namespace {

const std::string kWarehouses =
    "SELECT WareHouse.cWhCode as [仓库编码] ,WareHouse.cWhName as [仓库名称]  FROM WareHouse where "
    "isnull(warehouse.bincost,0)<>0  ORDER BY WareHouse.cWhCode";
const std::string kWarehousesUnordered = kWarehouses.substr(0, kWarehouses.find("ORDER BY"));

TEST(LookupSelect, WrapsTheSelectAndLetsItsOrderStandOutside)
{
    const LookupSelect lookup(kWarehouses);
    EXPECT_EQ(lookup.Captions(), (std::vector<std::string>{"仓库编码", "仓库名称"}));
    EXPECT_EQ(lookup.Select(21, {"", ""}), "select top 21 Lookup.[仓库编码], Lookup.[仓库名称] from (" +
                                               kWarehousesUnordered +
                                               ") Lookup order by Lookup.[仓库编码], Lookup.[仓库名称]");
    EXPECT_EQ(lookup.SelectCount({"a = 1", " b = 2 "}),
              "select count(*) from (" + kWarehousesUnordered + ") Lookup where (a = 1) and (b = 2)");
}

TEST(LookupSelect, FindsTheColumnsOfAUnionInItsFirstSelectAndTheOrderByCaption)
{
    const LookupSelect lookup(
        "select cVouchType as [单据编码] ,EnumName  As [单据类型] from VouchType where cvouchtype in ('05','06')"
        " Union select '01','a from b, c order by d' Order By [单据编码]");
    EXPECT_EQ(
        lookup.Select(3, {}),
        "select top 3 Lookup.[单据编码], Lookup.[单据类型] from (select cVouchType as [单据编码] ,EnumName  As "
        "[单据类型] from VouchType where cvouchtype in ('05','06') Union select '01','a from b, c order by d' "
        ") Lookup order by Lookup.[单据编码], Lookup.[单据类型]");
}

TEST(LookupSelect, TakesEveryFormOfAnOrder)
{
    const struct {
        std::string_view order, wanted;
    } cases[] = {
        {"", " order by Lookup.[c], Lookup.[n]"},
        {" order by 2 desc", " order by Lookup.[n] desc, Lookup.[c]"},
        {" order by [t].[C] asc, n", " order by Lookup.[c], Lookup.[n]"},
        {" order by c desc, T . n", " order by Lookup.[c] desc, Lookup.[n]"},
    };
    for (const auto& c : cases) {
        const std::string sql =
            LookupSelect("select distinct t.c as [c], t.n as n from t" + std::string(c.order)).Select(1, {});
        EXPECT_EQ(sql.substr(sql.find(" order by ")), c.wanted) << c.order;
    }
    EXPECT_EQ(LookupSelect("select t.c x, isnull(a, 0) y, left(n, 2) [z] from t order by t.c").Captions(),
              (std::vector<std::string>{"x", "y", "z"}));
    EXPECT_THROW(LookupSelect("select c from t order by d"), Error);
    EXPECT_THROW(LookupSelect("select c + d from t"), Error);
    EXPECT_THROW(LookupSelect("select 1"), Error);
    EXPECT_THROW(LookupSelect("delete from t"), Error);
}

// A batch of several items is several rows: pages are read one by one, and the server may order equal rows
// anew each time.
TEST(LookupSelect, OrdersByAllThatItShowsAndNoColumnTwice)
{
    const auto orderOf = [](const LookupSelect& lookup) {
        const std::string sql = lookup.Select(1, {});
        return sql.substr(sql.find(" order by "));
    };
    const Lookups lookups = ParseLookups(R"json({"lookups": {
        "batches": {"from": "L", "distinct": true, "columns": [
            {"column": "L.cBatch", "caption": {"zh-CN": "批号", "en-US": "Batch"}},
            {"column": "L.cInvCode", "caption": {"zh-CN": "编码", "en-US": "Code"}},
            {"column": "L.cID", "hidden": true}]},
        "latest": {"from": "L", "order": "L.cID desc, L.cInvCode", "columns": [
            {"column": "L.cBatch", "caption": {"zh-CN": "批号", "en-US": "Batch"}},
            {"column": "L.cInvCode", "caption": {"zh-CN": "编码", "en-US": "Code"}},
            {"column": "L.cID", "hidden": true}]}}})json");
    EXPECT_EQ(orderOf(LookupSelect(lookups.at("batches"), "", "zh-CN")),
              " order by Lookup.[cBatch], Lookup.[cInvCode]");
    EXPECT_EQ(orderOf(LookupSelect(lookups.at("latest"), "", "zh-CN")),
              " order by Lookup.[cID] desc, Lookup.[cInvCode], Lookup.[cBatch]");
}

TEST(LookupSelect, LooksForTheBeginningOfACodeOrAPartOfAName)
{
    const LookupSelect lookup(kWarehouses);
    EXPECT_EQ(lookup.Search(" 01 "), "Lookup.[仓库编码] like N'01%' or Lookup.[仓库名称] like N'%01%'");
    EXPECT_EQ(lookup.Search("5%_[']"),
              "Lookup.[仓库编码] like N'5[%][_][[]'']%' or Lookup.[仓库名称] like N'%5[%][_][[]'']%'");
    EXPECT_EQ(lookup.Search("  "), "");
    EXPECT_EQ(LookupSelect("select a as [x]]y] from T").Search("1"), "Lookup.[x]]y] like N'1%'");
}

LookupTemplate Items()
{
    return ParseLookups(R"json({"lookups": {"items": {"from": "Inventory left join C on C.k = Inventory.k",
        "where": "Inventory.a = 1 or Inventory.b = 2", "order": "Inventory.cInvName, Inventory.cInvCode", "columns": [
            {"column": "Inventory.cInvCode", "caption": {"zh-CN": "编码", "en-US": "Code"}},
            {"column": "Inventory.cInvName", "caption": {"zh-CN": "名称", "en-US": "Name"}},
            {"column": "Inventory.cInvCCode", "hidden": true}]}}})json")
        .at("items");
}

TEST(LookupSelect, IsMadeOfATemplateWithCaptionsInTheLanguage)
{
    const LookupSelect lookup(Items(), "Inventory.iid in (N'1')", "en-US");
    EXPECT_EQ(lookup.Captions(), (std::vector<std::string>{"Code", "Name"}));
    EXPECT_EQ(LookupSelect(Items(), "", "zh-CN").Captions().front(), "编码");
    EXPECT_EQ(
        lookup.Select(2, {}),
        "select top 2 Lookup.[cInvCode], Lookup.[cInvName] from (select Inventory.cInvCode as [cInvCode], "
        "Inventory.cInvName as [cInvName], Inventory.cInvCCode as [cInvCCode] from Inventory left join C on "
        "C.k = Inventory.k where (Inventory.a = 1 or Inventory.b = 2) and (Inventory.iid in (N'1'))) Lookup "
        "order by Lookup.[cInvName], Lookup.[cInvCode]");
    LookupTemplate distinct = Items();
    distinct.distinct = true;
    distinct.order.clear();
    distinct.where.clear();
    EXPECT_EQ(
        LookupSelect(distinct, "", "zh-CN").SelectCount({}),
        "select count(*) from (select distinct Inventory.cInvCode as [cInvCode], Inventory.cInvName as "
        "[cInvName], Inventory.cInvCCode as [cInvCCode] from Inventory left join C on C.k = Inventory.k) Lookup");
}

TEST(LookupSelect, ResolvesTheTokensOfConditions)
{
    const LookupSelect items(Items(), "", "zh-CN");
    const struct {
        std::string_view condition, resolved;
    } cases[] = {
        {"", ""},
        {" #FN[cInvCCode]='01'", " Lookup.[cInvCCode]='01'"},
        {"#FN[cinvcCODE] like N'01%'", "Lookup.[cInvCCode] like N'01%'"},
        {"fld1 in (select cDepCode    from Warehouse  where  cWhCode='#FN[x] fld1')",
         "Lookup.[cInvCode] in (select cDepCode    from Warehouse  where  cWhCode='#FN[x] fld1')"},
        {" cid = 20 ", " cid = 20 "},
        {"FLD2 = 1 and fld9 = 2 and fldx = 3", "Lookup.[cInvName] = 1 and fld9 = 2 and fldx = 3"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(items.Resolve(std::string(c.condition)), c.resolved);
    EXPECT_THROW(items.Resolve("#FN[cCusCode]='1'"), Error);

    // A SELECT knows its columns by what stands behind their captions as well.
    EXPECT_EQ(LookupSelect(kWarehouses).Resolve("#FN[cWhName]='x' and #FN[仓库编码]='1'"),
              "Lookup.[仓库名称]='x' and Lookup.[仓库编码]='1'");
}

}  // namespace
}  // namespace kavelin::host
