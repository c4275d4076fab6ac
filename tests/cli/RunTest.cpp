// Reports and queries on an account, as a user runs them.
#include "cli/Demo.h"
#include "cli/Process.h"
#include "frame/Decimal.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>

namespace kavelin::cli {
namespace {

using nlohmann::json;

std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

class RunTest : public testing::Test {
  protected:
    // `arguments` with the shared account behind them.
    Outcome OnDemo(std::vector<std::string> arguments, RunOptions options = {}) const
    {
        arguments.insert(arguments.end(), {"--account", DemoAccount()});
        return objProgram.Run(arguments, std::move(options));
    }

    Program objProgram;
};

TEST_F(RunTest, DemoPrintsSharesThatSumTo100AndSaysWhatToTryNext)
{
    const Outcome outcome = objProgram.Run({"demo", "--account", "my demo.kavelin"});
    ASSERT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_NE(outcome.out.find("资金占用额"), std::string::npos);
    EXPECT_EQ(outcome.out.find("kavelin run"), std::string::npos);
    EXPECT_NE(outcome.err.find("What to try next:"), std::string::npos);
    EXPECT_NE(outcome.err.find("kavelin run capital-share --account 'my demo.kavelin' --set cNo=10"),
              std::string::npos);

    const Outcome csv =
        objProgram.Run({"run", "capital-share", "--account", "my demo.kavelin", "--format", "csv"});
    ASSERT_EQ(csv.exitCode, 0) << csv.err;
    const auto lines = Lines(csv.out);
    EXPECT_EQ(lines.at(0),
              "cNo,cinvcode,cInvAddCode,cInvName,cInvStd,CComUnitName,cInvCCode,资金占用额,所占比重\r");
    ASSERT_GT(lines.size(), 20u);
    Int128 hundredths = 0;
    for (std::size_t row = 1; row < lines.size(); ++row) {
        const std::string line = lines[row].substr(0, lines[row].size() - 1);
        const auto share = Decimal::FromText(line.substr(line.rfind(',') + 1));
        ASSERT_TRUE(share) << line;
        EXPECT_EQ(share->Scale(), 2) << line;
        hundredths += share->Unscaled();
    }
    EXPECT_EQ(static_cast<long>(hundredths), 10000);
}

TEST_F(RunTest, DemoIsMadeInTheDataFolderAndThenUsedByItself)
{
    RunOptions options;
    options.environment["XDG_DATA_HOME"] = (objProgram.Folder() / "data").string();
    ASSERT_EQ(objProgram.Run({"demo", "--lines", "2000"}, options).exitCode, 0);
    EXPECT_TRUE(std::filesystem::exists(objProgram.Folder() / "data/kavelin/demo.kavelin"));

    const Outcome again = objProgram.Run({"demo"}, options);
    EXPECT_EQ(again.exitCode, 0) << again.err;
    EXPECT_EQ(again.err.find("Making"), std::string::npos) << again.err;
    EXPECT_EQ(objProgram.Run({"run", "capital-share", "--set", "cNo=1"}, options).exitCode, 0);
    EXPECT_EQ(objProgram.Run({"demo", "--lines", "2000"}, options).exitCode, 0);

    const Outcome other = objProgram.Run({"demo", "--lines", "2001"}, options);
    EXPECT_EQ(other.exitCode, 2);
    EXPECT_NE(other.err.find("is there already: profile industry, 2,000 ledger lines."), std::string::npos)
        << other.err;
}

TEST_F(RunTest, DemoOverwritesNoFileOfAnotherKind)
{
    objProgram.Write("letter.txt", "Dear Sir");
    EXPECT_NE(objProgram.Run({"demo", "--account", "letter.txt"}).exitCode, 0);
    EXPECT_EQ(objProgram.Read("letter.txt"), "Dear Sir");

    ASSERT_EQ(objProgram.Run({"account", "create", "books.kavelin"}).exitCode, 0);
    const Outcome outcome = objProgram.Run({"demo", "--account", "books.kavelin"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_NE(outcome.err.find("holds another account"), std::string::npos) << outcome.err;
}

TEST_F(RunTest, ReportsAreTheSameInEveryForm)
{
    const Outcome csv = OnDemo({"run", "capital-share", "--format", "csv"});
    const Outcome text = OnDemo({"run", "capital-share", "--format", "json"});
    ASSERT_EQ(csv.exitCode, 0) << csv.err;
    ASSERT_EQ(text.exitCode, 0) << text.err;
    EXPECT_EQ(csv.err, "");
    EXPECT_EQ(text.err, "");
    const json rows = json::parse(text.out);
    EXPECT_EQ(rows.size() + 1, Lines(csv.out).size());
    EXPECT_EQ(rows.at(0).at("cNo"), 1);
    EXPECT_TRUE(rows.at(0).at("所占比重").is_number());
    EXPECT_TRUE(Lines(csv.out).at(1).starts_with("1," + rows.at(0).at("cinvcode").get<std::string>() + ","));
}

TEST_F(RunTest, AFilterCutsTheResult)
{
    const Outcome ten = OnDemo({"run", "capital-share", "--set", "CNO=10", "--format", "json"});
    ASSERT_EQ(ten.exitCode, 0) << ten.err;
    EXPECT_EQ(json::parse(ten.out).size(), 10u);

    objProgram.Write("filter.json", R"({"cNo": 10})");
    const Outcome file = OnDemo({"run", "capital-share", "--filter",
                                 (objProgram.Folder() / "filter.json").string(), "--format", "json"});
    EXPECT_EQ(json::parse(file.out).size(), 10u) << file.err;
    const Outcome three =
        OnDemo({"run", "capital-share", "--filter", (objProgram.Folder() / "filter.json").string(), "--set",
                "cNo=3", "--format", "json"});
    EXPECT_EQ(json::parse(three.out).size(), 3u) << three.err;
}

TEST_F(RunTest, ColumnsAreChosenByNameOrByTheReport)
{
    const Outcome two = OnDemo({"run", "capital-share", "--columns", "cinvcode,CNO", "--format", "csv"});
    ASSERT_EQ(two.exitCode, 0) << two.err;
    EXPECT_EQ(Lines(two.out).front(), "cinvcode,cNo\r");

    const Outcome journal = OnDemo({"run", "journal", "--limit", "3"});
    ASSERT_EQ(journal.exitCode, 0) << journal.err;
    EXPECT_NE(Lines(journal.out).front().find("存货编码"), std::string::npos);
    EXPECT_EQ(Lines(journal.out).front().find("cdefine1"), std::string::npos);
    EXPECT_NE(journal.err.find("13 of 124 columns"), std::string::npos) << journal.err;
    const Outcome all = OnDemo({"run", "journal", "--limit", "3", "--columns", "all"});
    EXPECT_NE(Lines(all.out).front().find("cdefine1"), std::string::npos);

    const Outcome none = OnDemo({"run", "capital-share", "--columns", "nix"});
    EXPECT_EQ(none.exitCode, 2);
    EXPECT_NE(none.err.find("no column \"nix\""), std::string::npos) << none.err;
}

TEST_F(RunTest, ASummaryIsGroupedWithTotalsInTheTableOnly)
{
    const std::vector<std::string> march = {"run", "stock-summary", "--set",
                                            "dVouDate=2008-03-01..2008-03-31"};
    const auto run = [&](std::vector<std::string> more) {
        more.insert(more.begin(), march.begin(), march.end());
        return OnDemo(more);
    };
    const Outcome table = run({"--group", "warehouse"});
    ASSERT_EQ(table.exitCode, 0) << table.err;
    EXPECT_TRUE(Lines(table.out).front().starts_with("仓库  仓库名")) << table.out;
    EXPECT_NE(table.out.find("\n合计"), std::string::npos) << table.out;
    EXPECT_NE(run({"--group", "warehouse", "--language", "en-US"}).out.find("\nTotal"), std::string::npos);

    const Outcome text = run({"--group", "warehouse", "--format", "json"});
    ASSERT_EQ(text.exitCode, 0) << text.err;
    const json rows = json::parse(text.out);
    const Outcome totals = run({"--group", "business", "--format", "json"});
    double closing = 0;
    for (const json& row : rows) {
        EXPECT_FALSE(row.at("cwhcode").get<std::string>().empty());
        closing += row.at("QmPrice").get<double>();
    }
    for (const json& row : json::parse(totals.out))
        closing -= row.at("QmPrice").get<double>();
    EXPECT_NEAR(closing, 0, 0.001) << "a grouping changes no sum";

    const Outcome lines = run({"--lines", "--format", "json"});
    EXPECT_GT(json::parse(lines.out).size(), 50u);
    EXPECT_TRUE(json::parse(lines.out).at(0).contains("brdflagtext"));
    EXPECT_EQ(lines.err, "");
}

TEST_F(RunTest, OnlyASummaryIsGrouped)
{
    for (const char* flag : {"--group=item", "--lines"}) {
        const Outcome outcome = OnDemo({"run", "capital-share", flag});
        EXPECT_EQ(outcome.exitCode, 2);
        EXPECT_NE(outcome.err.find("neither --group nor --lines"), std::string::npos) << outcome.err;
    }
    const std::vector<std::string> summary = {"run", "stock-summary", "--set",
                                              "dVouDate=2008-03-01..2008-03-31"};
    const auto refused = [&](std::vector<std::string> more, const std::string& why) {
        more.insert(more.begin(), summary.begin(), summary.end());
        const Outcome outcome = OnDemo(more);
        EXPECT_EQ(outcome.exitCode, 2);
        EXPECT_NE(outcome.err.find(why), std::string::npos) << outcome.err;
    };
    refused({"--group", "warehose"}, "Did you mean warehouse?");
    refused({"--group", "item", "--lines"}, "--lines shows rows that are not grouped");
    const Outcome help = objProgram.Run({"run", "stock-summary", "--help"});
    EXPECT_NE(help.out.find("item, warehouse, class, free, rd, business, document"), std::string::npos)
        << help.out;
}

TEST_F(RunTest, ALimitCutsWhatIsPutOut)
{
    // The four largest shares differ; of equal ones, either may come first in another run.
    const Outcome all = OnDemo({"run", "capital-share", "--format", "csv"});
    const Outcome four = OnDemo({"run", "capital-share", "--format", "csv", "--limit", "4"});
    ASSERT_EQ(four.exitCode, 0) << four.err;
    EXPECT_EQ(Lines(four.out).size(), 5u);
    EXPECT_TRUE(all.out.starts_with(four.out));
    EXPECT_EQ(OnDemo({"run", "capital-share", "--limit", "-1"}).exitCode, 2);
}

TEST_F(RunTest, ShowSqlShowsTheStatementsOnStderr)
{
    const Outcome outcome = OnDemo({"run", "capital-share", "--format", "csv", "--show-sql"});
    ASSERT_EQ(outcome.exitCode, 0);
    EXPECT_NE(outcome.err.find("into ia_ProPortionRpt_temp1"), std::string::npos);
    EXPECT_EQ(outcome.out.find("ia_ProPortionRpt_temp1"), std::string::npos);
}

TEST_F(RunTest, TheStatementLogHoldsWhatWasSent)
{
    RunOptions options;
    options.environment["KAVELIN_SQL_LOG"] = (objProgram.Folder() / "log.jsonl").string();
    ASSERT_EQ(OnDemo({"query", "select count(*) from Warehouse"}, options).exitCode, 0);
    bool found = false;
    for (const std::string& line : Lines(objProgram.Read("log.jsonl")))
        found = found || json::parse(line).at("sql") == "select count(*) from Warehouse";
    EXPECT_TRUE(found) << objProgram.Read("log.jsonl");
}

TEST_F(RunTest, NothingOfARunStaysInTheAccount)
{
    const char* tables = "select name from sysobjects where xtype = 'U' order by name";
    const Outcome before = OnDemo({"query", tables, "--format", "csv"});
    ASSERT_EQ(OnDemo({"run", "capital-share"}).exitCode, 0);
    EXPECT_EQ(OnDemo({"query", tables, "--format", "csv"}).out, before.out);
}

TEST_F(RunTest, OutputGoesToAFileThatIsWholeOrAbsent)
{
    const std::string file = (objProgram.Folder() / "shares.csv").string();
    const std::string sql = "select * from Warehouse order by cWhCode";
    const Outcome printed = OnDemo({"query", sql, "--format", "csv"});
    const Outcome written = OnDemo({"query", sql, "--format", "csv", "--output", file});
    ASSERT_EQ(written.exitCode, 0) << written.err;
    EXPECT_EQ(written.out, "");
    EXPECT_EQ(objProgram.Read("shares.csv"), printed.out);

    EXPECT_EQ(OnDemo({"query", "select 1 from NoSuchTable", "--output", file}).exitCode, 1);
    EXPECT_EQ(objProgram.Read("shares.csv"), printed.out);
    EXPECT_EQ(objProgram.Files(), std::vector<std::string>{"shares.csv"});

    const Outcome nowhere = OnDemo({"run", "capital-share", "--output", "/no/such/folder/x.csv"});
    EXPECT_EQ(nowhere.exitCode, 1);
    EXPECT_NE(nowhere.err.find("/no/such/folder/x.csv cannot be written"), std::string::npos) << nowhere.err;
}

TEST_F(RunTest, QueryPrintsEachRowSet)
{
    const Outcome outcome =
        OnDemo({"query", "select 1 as a; select N'六角' as b, 2.50 as c", "--format", "csv"});
    ASSERT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_EQ(outcome.out, "a\r\n1\r\n\r\nb,c\r\n六角,2.50\r\n");

    const Outcome table = OnDemo({"query", "select 1 as a select 12345.60 as b"});
    EXPECT_EQ(table.out, "a\n─\n1\n1 row.\n\n        b\n─────────\n12,345.60\n1 row.\n") << table.err;
}

TEST_F(RunTest, QueryTellsTheRowsThatItChanged)
{
    const Outcome outcome = OnDemo({"query",
                                    "create table #t (a int) insert into #t values (1), (2) "
                                    "delete from #t where a = 2 select a from #t",
                                    "--format", "json"});
    ASSERT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_EQ(outcome.out, "[\n{\"a\": 1}\n]\n");
    EXPECT_EQ(outcome.err, "2 rows changed.\n1 row changed.\n");
}

TEST_F(RunTest, AFailedStatementTellsItsPlaceInTheBatch)
{
    const Outcome outcome = OnDemo({"query", "select 1 as a\nselect b from NoSuchTable"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.out, "a\n─\n1\n1 row.\n");
    EXPECT_NE(outcome.err.find("line 2"), std::string::npos) << outcome.err;
    EXPECT_NE(outcome.err.find("NoSuchTable"), std::string::npos) << outcome.err;

    const Outcome syntax = OnDemo({"query", "select 1 as a\nselct 2"});
    EXPECT_EQ(syntax.exitCode, 1);
    EXPECT_EQ(syntax.out, "");
}

TEST_F(RunTest, NoConnectionIsExitCode3)
{
    const Outcome outcome = objProgram.Run({"run", "capital-share", "--account", "none.kavelin"});
    EXPECT_EQ(outcome.exitCode, 3);
    EXPECT_EQ(outcome.out, "");
    EXPECT_NE(outcome.err.find("none.kavelin"), std::string::npos) << outcome.err;
    EXPECT_EQ(objProgram.Run({"query", "select 1", "--account", "none.kavelin"}).exitCode, 3);
    EXPECT_TRUE(objProgram.Files().empty());
}

TEST_F(RunTest, SettingsComeByFlagThenEnvironmentThenFile)
{
    objProgram.Write("kavelin.toml",
                     "account = \"books\"\n[accounts.books]\npath = \"" + DemoAccount() + "\"\n");
    EXPECT_EQ(objProgram.Run({"query", "select 1"}).exitCode, 0);

    RunOptions options;
    options.environment["KAVELIN_ACCOUNT"] = "none.kavelin";
    EXPECT_EQ(objProgram.Run({"query", "select 1"}, options).exitCode, 3);
    EXPECT_EQ(objProgram.Run({"query", "select 1", "--account", "books"}, options).exitCode, 0);
}

TEST_F(RunTest, ColourIsForTerminalsAndNeverWithNoColor)
{
    RunOptions options;
    EXPECT_EQ(OnDemo({"query", "select 1 as a"}, options).out.find('\x1b'), std::string::npos);
    options.outputTerminal = true;
    EXPECT_NE(OnDemo({"query", "select 1 as a"}, options).out.find('\x1b'), std::string::npos);
    EXPECT_EQ(OnDemo({"query", "select 1 as a", "--format", "json"}, options).out, "[\n{\"a\": 1}\n]\n");
    options.environment["NO_COLOR"] = "1";
    EXPECT_EQ(OnDemo({"query", "select 1 as a"}, options).out.find('\x1b'), std::string::npos);
}

TEST_F(RunTest, TheTableFitsTheTerminal)
{
    RunOptions options;
    options.outputTerminal = true;
    options.environment["NO_COLOR"] = "1";
    const Outcome outcome = OnDemo({"run", "capital-share"}, options);
    ASSERT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_NE(outcome.out.find("资金占用额"), std::string::npos) << outcome.out;
    EXPECT_NE(outcome.out.find("Rows 1 to 20 and the last 10 of"), std::string::npos) << outcome.out;
}

// A statement that no machine ends in the time of a test.
const char* const kEndless =
    "select sum(a.iAOutPrice * b.iAInPrice) as s from IA_Subsidiary a, IA_Subsidiary b, "
    "IA_Subsidiary c where a.cInvCode + b.cInvCode <> c.cInvCode";

TEST_F(RunTest, CtrlCStopsARunningStatementWithinHalfASecond)
{
    DemoAccount();
    RunOptions options;
    options.interruptAfter = std::chrono::milliseconds(1200);
    const std::string file = (objProgram.Folder() / "rows.csv").string();
    const Outcome outcome = OnDemo({"query", kEndless, "--output", file}, options);
    EXPECT_EQ(outcome.exitCode, 130);
    EXPECT_LT(outcome.sinceSignal.count(), 500);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "kavelin: Interrupted.\n");
    EXPECT_TRUE(objProgram.Files().empty());
    EXPECT_EQ(OnDemo({"query", "select count(*) from Warehouse"}).exitCode, 0);
}

TEST_F(RunTest, CtrlCWhileTheDemoIsMadeLeavesNoFile)
{
    RunOptions options;
    options.interruptAfter = std::chrono::milliseconds(300);
    const Outcome outcome =
        objProgram.Run({"demo", "--lines", "20000000", "--account", "big.kavelin"}, options);
    EXPECT_EQ(outcome.exitCode, 130) << outcome.err;
    EXPECT_EQ(objProgram.Files(), std::vector<std::string>{});
}

TEST_F(RunTest, AProgressLineShowsOnATerminalOnceARunTakesOverASecond)
{
    DemoAccount();
    RunOptions options;
    options.errorTerminal = true;
    options.interruptAfter = std::chrono::milliseconds(2000);
    const Outcome outcome = OnDemo({"query", kEndless}, options);
    EXPECT_EQ(outcome.exitCode, 130);
    EXPECT_NE(outcome.err.find("statement 1 of 1: "), std::string::npos) << outcome.err;

    RunOptions quick;
    quick.errorTerminal = true;
    EXPECT_EQ(OnDemo({"query", "select 1 as a"}, quick).err, "");
}

TEST_F(RunTest, AReaderThatHasHadEnoughIsNoFailure)
{
    RunOptions options;
    options.closeOutput = true;
    const Outcome outcome = OnDemo({"query", "select * from IA_Subsidiary", "--format", "csv"}, options);
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.err, "");
}

TEST_F(RunTest, AnAccountIsLoadedAndExported)
{
    std::filesystem::create_directory(objProgram.Folder() / "in");
    objProgram.Write("in/Warehouse.csv", "cWhCode,cWhName\r\n01,\"Store, main\"\r\n02,Yard\r\n");
    ASSERT_EQ(objProgram.Run({"account", "create", "books.kavelin"}).exitCode, 0);
    EXPECT_NE(objProgram.Run({"account", "create", "books.kavelin"}).exitCode, 0);

    const Outcome loaded = objProgram.Run({"account", "load", "books.kavelin", "in"});
    ASSERT_EQ(loaded.exitCode, 0) << loaded.err;
    EXPECT_EQ(loaded.err, "Loaded 2 rows in 1 table.\n");
    EXPECT_EQ(loaded.out, "");
    EXPECT_EQ(objProgram
                  .Run({"query", "select cWhCode, cWhName from Warehouse order by cWhCode", "--account",
                        "books.kavelin", "--format", "csv"})
                  .out,
              "cWhCode,cWhName\r\n01,\"Store, main\"\r\n02,Yard\r\n");

    objProgram.Write("in/Warehouse.csv", "cWhCode,colour\r\n03,red\r\n");
    const Outcome refused = objProgram.Run({"account", "load", "books.kavelin", "in"});
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_NE(refused.err.find("colour"), std::string::npos) << refused.err;

    ASSERT_EQ(objProgram.Run({"account", "export", "books.kavelin", "out"}).exitCode, 0);
    EXPECT_NE(objProgram.Read("out/Warehouse.csv").find("Store, main"), std::string::npos);
}

}  // namespace
}  // namespace kavelin::cli
