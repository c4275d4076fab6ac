// The reports on a server, over its protocol and through its driver: rows, names and types must be those of
// the embedded account behind it.
#include "demo/profiles/Profile.h"
#include "frame/Errors.h"
#include "frame/Text.h"
#include "frame/Value.h"
#include "host/FilterInput.h"
#include "host/FilterTemplate.h"
#include "host/ReportRun.h"
#include "host/Reports.h"
#include "reports/AccountReport.h"
#include "support/tds/TdsServer.h"
#include "tds/FreeTds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

namespace kavelin::test {

namespace {

struct ReportCase {
    std::string report;
    std::vector<std::string> settings;
};

std::vector<ReportCase> Cases(const std::string& item)
{
    return {
        {"journal", {}},
        {"standard-cost-journal", {}},
        {"stock-summary", {"dVouDate=2008-01-01..2008-12-31"}},
        {"estimate-balance", {}},
        {"goods-summary", {}},
        {"goods-template", {"iYear=2008"}},
        {"goods-cost-summary", {}},
        {"goods-cost-ledger", {"IA_EnSubsidiary.cInvCode=" + item}},
        {"price-analysis", {}},
        {"turnover", {}},
        {"abc", {}},
        {"capital-share", {}},
        {"area-table", {}},
    };
}

// The result of the run: a line of names with their types, then the rows in order of their text.
std::vector<std::string> Result(host::ReportRun& run, const ReportCase& c)
{
    host::FilterInput input(host::TemplateOf(c.report), host::ValuePolicy::Checked);
    for (const std::string& setting : c.settings)
        input.Set(setting);
    run.Run(host::FindReport(c.report), input);

    const auto rows = run.OpenResult();
    std::string head;
    for (int field = 0; field < rows->FieldCount(); ++field)
        head += rows->FieldName(field) + " " + rows->FieldType(field) + ", ";
    std::vector<std::string> lines;
    for (; !rows->Eof(); rows->MoveNext()) {
        std::string& line = lines.emplace_back();
        for (int field = 0; field < rows->FieldCount(); ++field) {
            const Value value = rows->Field(field);
            const auto* number = value.As<Decimal>();
            line += (value.IsNull() ? "NULL" : number ? number->ToText() : ToText(value)) + " | ";
        }
    }
    std::ranges::sort(lines);
    lines.insert(lines.begin(), head);
    return lines;
}

const ReportCase kCapitalShare{"capital-share", {}};

class ServerAccount : public testing::TestWithParam<std::string> {
  protected:
    void SetUp() override
    {
        if (!tds::FreeTdsIsInstalled())
            GTEST_SKIP() << "FreeTDS's ODBC driver is not installed.";
        ::setenv("KAVELIN_ODBC_DRIVER", "FreeTDS", 1);
        const demo::Profile& profile = *demo::FindProfile(GetParam());
        tds::ServerOptions options;
        options.account = AccountOf(profile);
        options.locale = profile.language;
        server = std::make_unique<tds::TdsServer>(options);

        login = LoginTo(options.account, options.locale);
        embedded = std::make_unique<host::ReportRun>(login, LoggedConnections());
        login.connectionString = "Provider=SQLOLEDB;Data Source=tcp:127.0.0.1," +
                                 std::to_string(server->Port()) + ";Initial Catalog=" + options.database +
                                 ";User ID=" + options.logins.front().user;
        login.password = options.logins.front().password;
        served = std::make_unique<host::ReportRun>(login, LoggedConnections());
    }

    void TearDown() override { ::unsetenv("KAVELIN_ODBC_DRIVER"); }

    std::string BusiestItem()
    {
        const auto rows = embedded->Account().OpenRecordset(
            "select top 1 cInvCode from IA_EnSubsidiary group by cInvCode order by count(*) desc, cInvCode",
            CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
        return ToText(rows->Field(0));
    }

    std::unique_ptr<tds::TdsServer> server;
    host::AccountLogin login;  // to the server
    std::unique_ptr<host::ReportRun> embedded;
    std::unique_ptr<host::ReportRun> served;
};

TEST_P(ServerAccount, GivesTheRowsOfTheEmbeddedAccount)
{
    std::size_t lines = 0;
    for (const ReportCase& c : Cases(BusiestItem())) {
        const std::vector<std::string> expected = Result(*embedded, c);
        EXPECT_EQ(Result(*served, c), expected) << c.report;
        lines += expected.size();
    }
    EXPECT_GT(lines, 500u);
    EXPECT_TRUE(std::ranges::any_of(server->Batches(), [](const std::string& batch) {
        return ToLower(batch).find("insert into") != std::string::npos;
    }));
}

TEST_P(ServerAccount, GivesTheSameRowsWhereTheServerWarnsOfNulls)
{
    const ReportCase c{"journal", {}};
    const std::vector<std::string> expected = Result(*embedded, c);
    server->Order(tds::NullWarnings());
    EXPECT_EQ(Result(*served, c), expected);
}

INSTANTIATE_TEST_SUITE_P(Profiles, ServerAccount, testing::ValuesIn(ProfileNames()),
                         [](const auto& tested) { return PlainName(tested.param); });

// Of one profile only: what is lost doesn't depend on the company.
class LostServer : public ServerAccount {};

TEST_P(LostServer, FailsTheReportAtEveryBatchAndTheNextRunSucceeds)
{
    const std::vector<std::string> expected = Result(*embedded, kCapitalShare);
    const std::size_t before = server->Batches().size();
    EXPECT_EQ(Result(*served, kCapitalShare), expected);
    const std::size_t batches = server->Batches().size() - before;
    ASSERT_GT(batches, 10u);

    for (std::size_t batch = 0; batch < batches; ++batch) {
        host::ReportRun run(login, LoggedConnections());
        tds::Fault lost;
        lost.skip = static_cast<int>(batch);
        server->Order(lost);
        EXPECT_THROW(Result(run, kCapitalShare), Error) << "batch " << batch;
        server->ClearFaults();
    }
    EXPECT_EQ(Result(*served, kCapitalShare), expected);
}

INSTANTIATE_TEST_SUITE_P(Profiles, LostServer, testing::Values("industry"),
                         [](const auto& tested) { return PlainName(tested.param); });

}  // namespace

}  // namespace kavelin::test
