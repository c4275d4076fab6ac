#include "summary/clsSFCSumCon.h"

#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/PermissionColumns.h"
#include "frame/TempTables.h"
#include "frame/Text.h"
#include "summary/SumFilter.h"
#include "summary/clsIASFCReport.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace kavelin {

namespace {

SumArguments ArgumentsOf(const SumConditions& conditions)
{
    return {
        .strInvCCode = conditions.strInvCCode,
        .strInvStart = conditions.strInvCode(0),
        .strInvEnd = conditions.strInvCode(1),
        .varDateStart = conditions.varDate(0),
        .varDateEnd = conditions.varDate(1),
        .strWhDepCode = conditions.strWhCode,
        .bAccount = conditions.BlnAccounted,
        .BUnAccount = conditions.BlnUnAccounted,
        .iEndbz = conditions.IntThanZero,
        .iEndbzPrice = conditions.IntThanZeroA,
        .BFsbz = conditions.BlnIfOcc,
        .strCompareQuantity = conditions.strCompareQuantity,
        .intInvCGrade = conditions.intInvGrade,
        .blnUpGrade = false,
        .intRdGrade = conditions.intRdGrade,
        .blnWhSum = conditions.blnWhSum,
        .bytFree = conditions.bytFree,
        .bytDirect = conditions.bytDirect,
        .strDefineSub = conditions.strDefineSub,
        .strDefineRec = conditions.strDefineRec,
        .strDefineSal = conditions.strDefineSal,
        .itemCls = conditions.itemCls,
        .itemCode = conditions.itemCode,
        .cAssComUnitNum = conditions.cAssComUnitNum,
        .nCount = 0,
    };
}

// ---- the select list of sums

struct SumColumn {
    std::string_view ending;  // of the column's name; its last character is the direction
    std::string_view before, after;
    int measure;  // 0 pieces, 1 quantity, 2 money
    std::string_view sign;
};

// clang-format off
constexpr SumColumn kSumColumns[] = {
    {"金额入", ",cast( Sum(", ") as decimal(20,2)) As ", 2, "+"},
    {"件数入", ", Sum(",      ") As ",                   0, "+"},
    {"数量入", ", Sum(",      ") As ",                   1, "+"},
    {"金额出", ",cast( Sum(", ") as decimal(20,6)) As ", 2, "-"},
    {"件数出", ", Sum(",      ") As ",                   0, "-"},
    {"数量出", ", Sum(",      ") As ",                   1, "-"},
};
// clang-format on

}  // namespace

void clsSFCSumCon::CreateNewTemplate(ReportFilterObject& objFilter, const std::string& sTableName)
{
    DropTempdbTable(sTableName);
    if (!TranslateSummaryFilter(objFilter, *this))
        return;
    clsIASFCReport engine;
    engine.SetsTable(sTableName);
    engine.GetSum(ArgumentsOf(*this));
}

std::string clsSFCSumCon::BuildPermissionWhere()
{
    return BuildPermissionClauses(PermissionColumnsOf("clsSFCSumCon"));
}

std::string clsSFCSumCon::BuildSumSelect(const std::string& strSql, std::string& strGroupBy)
{
    const auto rows =
        Existing(ModPub().gcnnAccount)
            .OpenRecordset(strSql, CursorLocation::Client, CursorType::ForwardOnly, LockType::ReadOnly);
    std::string select;
    std::string closing[] = {"0", "0", "0"};
    strGroupBy.clear();
    for (int field = 0; field < rows->FieldCount(); ++field) {
        const std::string name = rows->FieldName(field);
        const auto sum = std::ranges::find(kSumColumns, Right(name, 3), &SumColumn::ending);
        if (sum == std::end(kSumColumns)) {
            select += (select.empty() ? "" : ", ") + name;
            strGroupBy += (strGroupBy.empty() ? " Group By " : ", ") + name;
            continue;
        }
        select += std::string(sum->before) + name + std::string(sum->after) + Left(name, Length(name) - 1);
        closing[sum->measure] += std::string(sum->sign) + name;
    }
    rows->Close();
    return select + ",Sum(" + closing[0] + ") As 结存_件数" + ", Sum(" + closing[1] +
           ") As 结存_数量, cast(Sum(" + closing[2] + ") as decimal(20,2)) As 结存_金额";
}

}  // namespace kavelin
