#include "summary/stock/SummaryRun.h"

#include "frame/Text.h"

#include <stdexcept>
#include <utility>

namespace kavelin::test {

namespace {

void Answer(RecordingHost& host, const std::string& sql, const std::optional<std::string>& value)
{
    Rows rows = {{"cValue"}, {}};
    if (value)
        rows.rows.push_back({Value(*value)});
    host.Script().rows[sql] = rows;
}

// A piece of a statement that no other step has, and the step's name.
constexpr std::pair<const char*, const char*> kSteps[] = {
    {"if exists(Select id from", "drop"},
    {"if exists(select * from  tempdb", "drop"},
    {"select top 0 ", "create"},
    {"cName= N'cDispLevel'", "?cDispLevel"},
    {"cname=N'cEnDispAccountStyle'", "?cEnDispAccountStyle"},
    {"cname=N'bSaleType'", "?bSaleType"},
    {"or imonth=0) ", "opening"},
    {"and imonth<> 0 ", "movement"},
    {" from rpt_rdrecordsIA870 ", "+stock"},
    {" from justinvouchsIA870 ", "+adjustments"},
    {" from salebillvouchsIA870 ", "+invoices"},
    {" from v_ex_invoicedetailIA870 ", "+exports"},
    {" from rpt_PU_v_VMIUsedVouchsIA870 ", "+vendors"},
    {" from DispatchListsIA870 ", "+dispatches"},
    {" from purbillvouchsIA870 ", "+purchases"},
    {"inner join Rdrecords   rd", "-issues"},
    {" ia inner join salebillvouchs sales on sales.autoid=ia.id", "-invoices-of-posted-issues"},
    {" ia inner join ex_invoicedetail ex", "-exports-of-posted-issues"},
    {" inner join salebillvouchs sales on sales.idlsid=rds.idlsid", "-issues-of-posted-invoices"},
    {"ex_invoicedetail on ex_invoicedetail.guid_source", "-issues-of-posted-exports"},
    {"N'分期'", "-instalments"},
    {"N'委托' and cvoutype in ('09',", "-entrusted-but-dispatch"},
    {"N'委托' and cvoutype in ('05','06','5','6','32')", "-entrusted-but-invoice"},
    {"N'委托' and cvoutype in ('05','06','5','6','26'", "-entrusted-but-issue"},
    {"  where left(cbustype,2)=N'直运' ", "-direct"},
    {"set sfc.crdname", "classes"},
    {"set sfc.cwhname", "warehouses"},
    {"set sfc.rate", "unit"},
    {"set sfc.cfree1", "free"},
};

std::string StepOf(const std::string& sql)
{
    for (const auto& [piece, step] : kSteps)
        if (sql.find(piece) != std::string::npos)
            return sql.find("and cbustype=N'直运") != std::string::npos ? std::string(step) + "(direct)"
                                                                        : step;
    throw std::logic_error("no step of the summary: " + sql);
}

}  // namespace

void Prepare(RecordingHost& host, const SummaryAccount& account, const std::vector<FakeField>& fields)
{
    host.Answers().sql = "tempdb..pool";
    host.Answers().texts = {{"Orvo.IA.CHHSSQL.12528", "发出"}, {"Orvo.IA.CHHSSQL.13500", "收入"}};
    host.SetParameter("IA", "dIAStartDate", account.start);
    Answer(host, "Select cValue from AccInformation Where cName= N'cDispLevel'", account.levels);
    Answer(host, "select cValue from accinformation where csysid=N'IA' and cname=N'cEnDispAccountStyle'",
           account.entrustedStyle);
    Answer(host, "select cValue from accinformation where csysid=N'IA' and cname=N'bSaleType'",
           account.saleType);
    host.SetFilter(fields);
}

std::vector<std::string> StatementsOf(const RecordingHost& host)
{
    std::vector<std::string> texts;
    for (const SentStatement& sent : host.Sent())
        if (!sent.sql.starts_with("Select * FROM AccInformation"))
            texts.push_back(sent.sql);
    return texts;
}

std::string StepsOf(const RecordingHost& host)
{
    std::string steps;
    for (const std::string& sql : StatementsOf(host))
        steps += (steps.empty() ? "" : " ") + StepOf(sql);
    return steps;
}

}  // namespace kavelin::test
