#include "price/AnalysisColumns.h"

#include "frame/Statement.h"

#include <string_view>

namespace kavelin {

namespace {

constexpr std::string_view kNotThere = "";
constexpr bool kShown = true;  // in the result

struct Column {
    std::string_view name;
    std::string_view ofLine, ofSummary;  // kNotThere: that fill leaves the column out
    bool shown = false;
};

// A summary row has no document: its texts are empty. Its month and year stand in dVouDate, run together.
// clang-format off
constexpr Column kColumns[] = {
    {"autoid",         "autoid",         "autoid",         kShown},
    {"iPzid",          "iPzid",          "''",             kShown},
    {"cpzid",          "cpzid",          "''",             kShown},
    {"iMonth",         "iMonth",         "iMonth"                },
    {"dVouDate",       "dVouDate",
     "CONVERT(nvarchar(4),iyear)+CONVERT(nvarchar(4),iMonth)", kShown},
    {"cVouCode",       "cVouCode",       "''",             kShown},
    {"cWhCode",        "cWhCode",        "cWhCode",        kShown},
    {"cWhName",        "cWhName",        "cWhName",        kShown},
    {"cAccDep",        "cAccDep",        "''",             kShown},
    {"cAccDepName",    "cAccDepName",    "''",             kShown},
    {"cInvCCode",      "cInvCCode",      "cInvCCode",      kShown},
    {"cInvCName",      "cInvCName",      "cInvCName",      kShown},
    {"cInvCode",       "cInvCode",       "cInvCode",       kShown},
    {"cInvName",       "cInvName",       "cInvName",       kShown},
    {"cInvAddCode",    "cInvAddCode",    "cInvAddCode",    kShown},
    {"cInvStd",        "cInvStd",        "cInvStd",        kShown},
    {"cVouType",       "cvouType",       "''",             kShown},
    {"cVouTypeName",   "cVouchName",     "''",             kShown},
    {"cBusType",       "cBusType",       "''",             kShown},
    {"cRdName",        "cRdName",        "''",             kShown},
    {"cCCCode",        "cCCCode",        "''",             kShown},
    {"cCCName",        "cCCName",        "''",             kShown},
    {"cCusCode",       "cCusCode",       "''",             kShown},
    {"cCusName",       "cCusName",       "''",             kShown},
    {"cVCCode",        "cVCCode",        "''",             kShown},
    {"cVCName",        "cVCName",        "''",             kShown},
    {"cVenCode",       "cVenCode",       "''",             kShown},
    {"cVenName",       "cVenName",       "''",             kShown},
    {"cDepCode",       "cDepCode",       "cDepCode",       kShown},
    {"cDepName",       "cDepName",       "cDepName",       kShown},
    {"dKeepDate",      "dKeepDate",      "''",             kShown},
    {"cItem_class",    "cItem_class",    "''",             kShown},
    {"cItemCName",     "cItemCName",     "''",             kShown},
    {"cItemCode",      "cItemCode",      "''",             kShown},
    {"cName",          "cName",          "''",             kShown},
    {"cproordercode",  "cproordercode",  "''",             kShown},
    {"Price",          "Case when iInCost is null then iOutCost else  iInCost end",
                       "CASE WHEN iNum = 0 THEN 0 else ( iMoney / iNum ) END", kShown},
    {"BasePrice",      "0",              "0",              kShown},
    {"Ratio",          "0",              "0",              kShown},
    {"DiffRatio",      "0",              "0",              kShown},
    {"ReferenceCost",  "0",              "0",              kShown},
    {"AvgPrice",       "0",              "0",              kShown},
    {"Balanceunit",    "0",              "0",              kShown},
    {"ExPrice",        "iOutCost",       "0",              kShown},
    {"InPrice",        "iInCost",        "0",              kShown},
    {"cBatchia",       "cBatchia",       "cBatchia",       kShown},
    {"iAInPrice",      "iAInPrice",      "iIMoney"               },
    {"iAOutPrice",     "iAOutPrice",     "iOMoney"               },
    {"iAInQuantity",   "iAInQuantity",   "iINum"                 },
    {"iAOutQuantity",  "iAOutQuantity",  "iONum"                 },
    {"iNum",           kNotThere,        "iNum"                  },
    {"iMoney",         kNotThere,        "iMoney"                },
    {"cWhValueStyle",  "cWhValueStyle",  "cWhValueStyle"         },
    {"cValueType",     "cValueType",     "cValueType"            },
    {"bCheckBatch",    "bCheckBatch",    "bCheckBatch"           },
};
// clang-format on

std::string Join(std::string_view Column::*text, bool (*wanted)(const Column&))
{
    std::string list;
    for (const Column& column : kColumns)
        if (wanted(column))
            list += (list.empty() ? "" : ",") + std::string(column.*text);
    return list;
}

bool IsOfLine(const Column& column)
{
    return column.ofLine != kNotThere;
}

bool IsOfSummary(const Column& column)
{
    return column.ofSummary != kNotThere;
}

bool IsShown(const Column& column)
{
    return column.shown;
}

}  // namespace

std::string ResultColumnTypes(const std::string& strRatioScale)
{
    return JoinLines({
        "autoid int, iPzid int,",
        "cpzid nvarchar(60),",
        "iMonth tinyint,",
        "dVouDate nvarchar(60), cVouCode nvarchar(60),",
        "cWhCode nvarchar(10), cWhName nvarchar(120),",
        "cAccDep nvarchar(60), cAccDepName nvarchar(255),",
        "cInvCCode nvarchar(60), cInvCode nvarchar(60),",
        "cInvCName nvarchar(255), cInvName nvarchar(255), cInvAddCode nvarchar(255), cInvStd nvarchar(255),",
        "cVouType nvarchar(30), cVouTypeName nvarchar(300),",
        "cBusType nvarchar(200),",
        "cRdName nvarchar(255),",
        "cCCCode nvarchar(30), cVCCode nvarchar(30),",
        "cCCName nvarchar(255), cVCName nvarchar(255),",
        "cCusCode nvarchar(98), cCusName nvarchar(98), cVenCode nvarchar(98), cVenName nvarchar(98),",
        "cDepCode nvarchar(60), cDepName nvarchar(255),",
        "dKeepDate datetime,",
        "cItem_class nvarchar(60), cItemCode nvarchar(60),",
        "cItemCName nvarchar(255), cName nvarchar(255),",
        "cproordercode nvarchar(30),",
        "BasePrice decimal(38, 6), Price decimal(38, 6),",
        "Ratio decimal(38, " + strRatioScale + "), DiffRatio decimal(38, " + strRatioScale + "),",
        "ReferenceCost decimal(38, 6), ExPrice decimal(38, 6), InPrice decimal(38, 6),",
        "AvgPrice decimal(38, 6), Balanceunit decimal(38, 6),",
        "cBatchia nvarchar(60),",
        "iAInPrice decimal(38, 6), iAOutPrice decimal(38, 6),",
        "iAInQuantity decimal(30,10), iAOutQuantity decimal(30,10),",
        "iNum DECIMAL(38,8),",
        "iMoney decimal(38, 6),",
        "cWhValueStyle nvarchar (12),",
        "cValueType nvarchar (20),",
        "bCheckBatch bit NOT NULL DEFAULT (0),",
        Numbered(1, 16, "cdefine{} nvarchar(120),") + Numbered(22, 37, "cdefine{} nvarchar(120),"),
        Numbered(1, 16, "cinvdefine{} nvarchar(120),"),
        Numbered(1, 9, "cfree{} nvarchar(20),") + "cfree10 nvarchar(20)",
    });
}

std::string LineColumns()
{
    return Join(&Column::name, IsOfLine) + ExtraColumns();
}

std::string LineValues()
{
    return Join(&Column::ofLine, IsOfLine) + Numbered(1, 16, ",cDefine{} as cdefine{}") +
           Numbered(22, 37, ",cDefine{} as cdefine{}") + Numbered(1, 16, ",cInvDefine{} as cinvdefine{}") +
           Numbered(1, 10, ",cFree{} as cfree{}");
}

std::string SummaryColumns()
{
    return Join(&Column::name, IsOfSummary) + ExtraColumns();
}

std::string SummaryValues()
{
    return Join(&Column::ofSummary, IsOfSummary) + Numbered(1, 16, ",'' as cdefine{}") +
           Numbered(22, 37, ",'' as cdefine{}") + Numbered(1, 16, ",'' as cinvdefine{}") +
           Numbered(1, 10, ",cFree{} as cfree{}");
}

std::string ShownColumns()
{
    return Join(&Column::name, IsShown) + ExtraColumns();
}

std::string ExtraColumns()
{
    return Numbered(1, 16, ",cDefine{}") + Numbered(22, 37, ",cDefine{}") + Numbered(1, 16, ",cInvDefine{}") +
           Numbered(1, 10, ",cFree{}");
}

}  // namespace kavelin
