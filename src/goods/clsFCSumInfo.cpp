#include "goods/clsFCSumInfo.h"

#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/TempTables.h"
#include "goods/GoodsClauses.h"
#include "goods/GoodsSumStatements.h"

namespace kavelin {

namespace {

Connection& Account()
{
    return Existing(ModPub().gcnnAccount);
}

// Each step ends with an error of its own, which is shown; the steps behind it still run.

void CreateFcWorkTable(std::string& strTable)
{
    ShowErrors([&] {
        const std::string name = GetClientTableName("FCSFCItem");
        strTable = InTempdb(name);
        Connection& connection = Account();
        connection.Execute(DropGoodsWorkTable(name));
        connection.Execute(CreateGoodsSumTable(strTable));
    });
}

void FillFcOpening(const std::string& strTable, const GoodsSumConditions& conditions)
{
    ShowErrors([&] {
        Account().Execute(InsertGoodsOpening(strTable, conditions.strOpenWhere, conditions.lngUnitNumber));
    });
}

void FillFcMovement(const std::string& strTable, const GoodsSumConditions& conditions)
{
    ShowErrors([&] {
        Connection& connection = Account();
        connection.Execute(InsertGoodsMovement(strTable, conditions.strMoveWhere, conditions.lngUnitNumber));
        connection.Execute(UpdateGoodsEnd(strTable));
    });
}

void BuildFcResult(const std::string& strTable, const std::string& strResult,
                   const GoodsSumConditions& conditions)
{
    ShowErrors([&] {
        Connection& connection = Account();
        connection.Execute(SelectGoodsSums(strTable));
        connection.Execute(SelectGoodsResult(strResult, conditions.strYear, conditions.lngUnitNumber));
    });
}

}  // namespace

void clsFCSumInfo::GETSQL(ReportCallArgs& e)
{
    RunFrame(FindFrameRow("clsFCSumInfo", FrameEntry::GETSQL), e, objFrame,
             [this] { return MoveDataDetail(); });
}

void clsFCSumInfo::GetSqlForOld(LateBound& e)
{
    RunFrame(FindFrameRow("clsFCSumInfo", FrameEntry::GetSqlForOld), e, objFrame,
             [this] { return MoveDataDetail(); });
}

bool clsFCSumInfo::MoveDataDetail()
{
    return IgnoreErrors([this] {
        ReadGoodsFilter(Existing(objFrame.objFilter), objConditions);
        std::string table;
        CreateFcWorkTable(table);
        FillFcOpening(table, objConditions);
        FillFcMovement(table, objConditions);
        BuildFcResult(table, objFrame.strTable, objConditions);
    });
}

std::string clsFCSumInfo::GetViewFilter(const std::string&)
{
    return "";
}

}  // namespace kavelin
