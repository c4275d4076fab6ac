#include "goods/ClsFcSumCon.h"

#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/PermissionColumns.h"
#include "frame/TempTables.h"
#include "goods/TemplateClasses.h"
#include "goods/TemplateColumns.h"
#include "goods/TemplateStatements.h"

#include <memory>
#include <vector>

namespace kavelin {

namespace {

Connection& Account()
{
    return Existing(ModPub().gcnnAccount);
}

std::string BuildPermissionWhere()
{
    return BuildPermissionClauses(PermissionColumnsOf("ClsFcSumCon"));
}

std::unique_ptr<Recordset> OpenRows(const std::string& sql)
{
    return Account().OpenRecordset(sql, CursorLocation::Client, CursorType::ForwardOnly, LockType::ReadOnly);
}

// Composes the columns of each class and hands none of them on: a template by class has no movements.
std::string BuildClassMovementColumns()
{
    const auto classes = OpenRows(SelectClasses(Machine().MachineName()));
    ComposeClassColumns(*classes);
    classes->Close();
    return "";
}

std::vector<std::string> FieldsOf(const std::string& sql)
{
    const auto rows = OpenRows(sql);
    std::vector<std::string> fields;
    for (int field = 0; field < rows->FieldCount(); ++field)
        fields.push_back(rows->FieldName(field));
    rows->Close();
    return fields;
}

// What both passes have in common.
struct Plan {
    std::string strTable;  // the work table
    std::string strDimensions;
    bool blnByClass = false;
    std::string strPermission;
};

// The filter comes first: it tells the unit's number and the merge value, on which all joins depend.
void FillPass(ReportFilterObject& objFilter, TemplatePass pass, const Plan& plan, TemplateChoices& choices)
{
    TemplateRun run;
    run.strTable = plan.strTable;
    run.strWhere = BuildTemplateWhere(objFilter, pass, choices);
    run.strColumns = plan.strDimensions + BuildOpeningColumns(pass) +
                     (plan.blnByClass ? BuildClassMovementColumns() : BuildPlainMovementColumns(pass));
    run.strPermission = plan.strPermission;
    run.lngUnitNumber = choices.lngUnitNumber;

    const bool opening = pass == TemplatePass::Opening;
    bool makesTable = opening;
    for (const VoucherGroup& group : VoucherGroups()) {
        if (!Takes(group, choices.strIsMerge))
            continue;
        Account().Execute(makesTable ? SelectTemplateRows(run, group)
                                     : InsertTemplateRows(run, group, opening ? " select " : " Select "));
        makesTable = false;
    }
}

}  // namespace

void ClsFcSumCon::CreateNewTemplate(ReportFilterObject& objFilter, const std::string& sTableName)
{
    Plan plan;
    plan.strTable = InTempdb(GetClientTableName("FCSFCItem"));
    const std::int32_t invCGrade = GetGrade(objFilter, "InvCGrade");
    plan.blnByClass = GetGrade(objFilter, "RdGrade") != 0;

    DropTempdbTable(plan.strTable);
    DropTempdbTable(sTableName);
    plan.strDimensions = BuildDimensionColumns(invCGrade);
    plan.strPermission = BuildPermissionWhere();
    FillPass(objFilter, TemplatePass::Opening, plan, objChoices);
    FillPass(objFilter, TemplatePass::Movement, plan, objChoices);

    const TemplateSums sums = BuildSums(FieldsOf(SelectTemplateSample(plan.strTable)));
    Account().Execute(SelectTemplateResult(sums, sTableName, plan.strTable));
    DropTempdbTable(plan.strTable);
}

}  // namespace kavelin
