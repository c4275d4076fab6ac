#include "price/AnalysisTableStatements.h"

#include "frame/Statement.h"
#include "price/AnalysisColumns.h"

namespace kavelin {

std::string CreateResult(const std::string& strTable, std::int16_t intRatioScale)
{
    return "CREATE TABLE " + strTable + " (" + ResultColumnTypes(std::to_string(intRatioScale)) + ")";
}

std::string AlterResult(const std::string& strTable)
{
    const std::string alter = "ALTER TABLE " + strTable;

    return JoinLines({
        alter + " ALTER  COLUMN cDefine4 datetime",
        alter + " ALTER  COLUMN cDefine5 int",
        alter + " ALTER  COLUMN cDefine6 datetime",
        alter + " ALTER  COLUMN cDefine7 float",
        alter + " ALTER  COLUMN cDefine26 float",
        alter + " ALTER  COLUMN cDefine27 float",
        alter + " ALTER  COLUMN cDefine15 int",
        alter + " ALTER  COLUMN cDefine16 float",
        alter + " ALTER  COLUMN cDefine34 int",
        alter + " ALTER  COLUMN cDefine35 int",
        alter + " ALTER  COLUMN cDefine36 datetime",
        alter + " ALTER  COLUMN cDefine37 datetime",
    });
}

std::string CreateWorkTable(const std::string& strWorkTable, const std::string& strTable)
{
    return "select * into " + strWorkTable + " from  " + strTable + " where 1 = 2";
}

std::string DropIfThere(const std::string& strTable)
{
    return "if exists(Select id from tempdb..sysobjects where id= object_id(N'" + strTable +
           "')) Drop Table " + strTable;
}

std::string FillAnalysisLines(const std::string& strWorkTable, const std::string& strWhere)
{
    return JoinLines({
        " insert into " + strWorkTable + " (" + LineColumns() + ")",
        " select " + LineValues(),
        " from IA_V_Subsidiary",
        " where  1 = 1 and cVouType<>'33' and  left(cBusType,2)<> N'直运' " + strWhere,
    });
}

std::string FillAnalysisSummary(const std::string& strWorkTable, const std::string& strWhere)
{
    return JoinLines({
        " insert into " + strWorkTable + " (" + SummaryColumns() + ")",
        " select " + SummaryValues(),
        " from IA_V_Summary",
        " where  1 = 1  " + strWhere,
    });
}

}  // namespace kavelin
