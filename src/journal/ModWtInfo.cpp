#include "journal/ModWtInfo.h"

#include "frame/AccountParameters.h"
#include "frame/Errors.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/Text.h"
#include "journal/WtCodes.h"
#include "journal/WtColumns.h"
#include "journal/WtFinish.h"
#include "journal/WtJoins.h"
#include "journal/WtPasses.h"
#include "journal/WtPostedStatements.h"
#include "journal/WtTable.h"
#include "journal/WtText.h"

namespace kavelin {

namespace {

// Once a run, for both parts of it.
struct Request {
    std::string strTable;
    const WtConditions& conditions;
    std::string strWhere;
    std::string strBusTypes;  // as a condition
    VouTypes types;
    std::string strValueStyle;
    WtFlags flags;
};

void CreateWtTable(const std::string& strTable)
{
    Connection& connection = Existing(ModPub().gcnnAccount);
    IgnoreErrors([&] { connection.Execute(CreateJournalTable(strTable)); });
    for (const std::string& statement : AlterJournalTable(strTable))
        IgnoreErrors([&] { connection.Execute(statement); });
}

// The ledger's condition on voucher types.
std::string InLedgerTypes(const VouTypes& types)
{
    if (types.strMain.empty())
        return types.strFlagged.empty() ? "" : " And (" + types.strFlagged + ")";
    const std::string halves = types.strFlagged.empty() ? "" : " OR " + types.strFlagged;
    return " And (NoSub.cVouType in (" + types.strMain + ")" + halves + ")";
}

bool RunPosted(const Request& request)
{
    return ShowErrors([&] {
        Connection& connection = Existing(ModPub().gcnnAccount);
        WtRun run;
        run.strTable = request.strTable;
        run.strSelect = SelectPosted(request.strValueStyle);
        run.strJoin = JoinPosted(request.conditions.lngAssUnitNo);
        run.strWhere = request.strWhere + request.strBusTypes + InLedgerTypes(request.types);

        connection.Execute(InsertPosted(run));
        if (!request.flags.dEXFirstDate.empty() || request.flags.bZYXS)
            connection.Execute(InsertPostedDirect(run));
    });
}

// Documents have the columns of inventory and customer themselves, and no posting date.
std::string OnDocuments(const Request& request)
{
    std::string where = ReplaceAll(request.strWhere, "Inventory.", "NoSub.");
    where = ReplaceAll(where, "Customer.", "NoSub.");
    return StripClause(where, " And NoSub.dKeepDate") + request.strBusTypes;
}

bool RunUnposted(const Request& request)
{
    return ShowErrors([&] {
        Connection& connection = Existing(ModPub().gcnnAccount);
        WtUnpostedRun run;
        run.strTable = request.strTable;
        run.strSelect = SelectUnposted(request.strValueStyle);
        run.strJoin = JoinUnposted(request.conditions.lngAssUnitNo);
        run.strWhere = OnDocuments(request);
        run.strDirectWhere =
            StripClause(StripClause(run.strWhere, "And NoSub.cWhCode"), "And NoSub.cDepCode");
        run.strVouTypes = request.types.strPlain;
        run.flags = request.flags;

        for (const WtPass& pass : WtPasses())
            if (pass.applies(run.flags) && Allows(run.strVouTypes, pass))
                connection.Execute(pass.statement(run, pass.source));
    });
}

}  // namespace

bool DropWtTable(const std::string& strTable)
{
    return ShowErrors([&] {
        if (strTable.empty())
            throw Error(Resources().GetResString("Orvo.IA.CHHSSQL.07860"));
        Existing(ModPub().gcnnAccount).Execute(DropJournalTable(strTable));
    });
}

bool BuildWtTable(const std::string& strTable, const WtConditions& conditions)
{
    bool done = false;
    const bool trapped = !ShowErrors([&] {
        DropWtTable(strTable);
        CreateWtTable(strTable);

        Request request{strTable, conditions, conditions.strWhere, "", {}, "", {}};
        request.strValueStyle = ToText(GetAccInfoValue("IA", "cValueStyle"));
        request.flags = ReadWtFlags();
        if (!conditions.strBusTypes.empty())
            request.strBusTypes = " And NoSub.cBusType in (" + conditions.strBusTypes + ")";
        if (!conditions.strVouTypes.empty())
            request.types = SplitVouTypes(conditions.strVouTypes);

        const auto firstDate = [] { return ToText(GetAccInfoValue("ia", "dIAFirstDate")); };
        if (conditions.blnAccounted) {
            request.strWhere += " And NoSub.dKeepDate>='" + firstDate() + "'";
            if (!RunPosted(request))
                return;
        }
        if (conditions.blnUnAccounted) {
            request.strWhere += " And NoSub.dVouDate>='" + firstDate() + "'";
            if (!RunUnposted(request))
                return;
        }
        FinishWtVouchers(strTable, conditions.strPzNoID);
        FinishWtBusType(strTable);
        done = true;
    });
    return !trapped && done;
}

}  // namespace kavelin
