#include "snapshot/AccountCopy.h"

#include "snapshot/CopyAccounts.h"

#include "frame/Errors.h"
#include "host/HostErrors.h"

#include <algorithm>
#include <span>

namespace kavelin::snapshot {
namespace {

class AccountCopyTest : public testing::Test {
  protected:
    AccountCopyTest() { FillWithOddValues(source.Account()); }

    CopyResult CopyAll(const CopyOptions& options = {}) { return Copy(source.Account(), *target, options); }
    std::string RefusalOf(const CopyOptions& options = {})
    {
        return Refusal(source.Account(), *target, options);
    }

    // Ends the copy as soon as it tells a text with these words.
    static CopyOptions InterruptedAt(const std::string& words)
    {
        CopyOptions options;
        options.onProgress = [words](const std::string& text) {
            if (text.find(words) != text.npos)
                throw Error("interrupted");
        };
        return options;
    }

    static std::size_t Copied(const CopyResult& result)
    {
        return static_cast<std::size_t>(
            std::ranges::count_if(result.tables, [](const CopiedTable& table) { return !table.wasThere; }));
    }

    test::TestFolder folder;
    OpenAccount source{folder / "source.kavelin"};
    OpenAccount copy{folder / "copy.kavelin"};
    std::unique_ptr<CopyTarget> target = copy.Target();
};

TEST_F(AccountCopyTest, BringsEveryValueAsItIs)
{
    const CopyResult result = CopyAll();
    EXPECT_TRUE(result.differences.empty());
    EXPECT_EQ(result.tables.size(), 34u);
    ExpectSameTables(source.Account(), copy.Account());
}

TEST_F(AccountCopyTest, BringsEveryValueInPagesOfOneRow)
{
    CopyOptions options;
    options.pageRows = 1;
    CopyAll(options);
    ExpectSameTables(source.Account(), copy.Account());
}

TEST_F(AccountCopyTest, LeavesEqualTablesAlone)
{
    CopyAll();
    const CopyResult again = CopyAll();
    EXPECT_EQ(Copied(again), 0u);
    EXPECT_TRUE(again.differences.empty());
}

TEST_F(AccountCopyTest, TakesAChangedTextOverWhenToldToCopyAgain)
{
    CopyAll();
    source.Run(
        "update Inventory set cInvName = N'另名' where cInvCode in (select min(cInvCode) from Inventory)");
    CopyOptions options;
    options.again = true;
    CopyAll(options);
    ExpectSameTables(source.Account(), copy.Account());
}

TEST_F(AccountCopyTest, CopiesATableAgainWhoseSourceHasChanged)
{
    CopyAll();
    source.Run("update Pursettlevouchs set iSVPrice = iSVPrice - 0.01 where ID = 1");
    source.Run("delete from ia_accountarea where AutoID = 7");
    const CopyResult again = CopyAll();
    EXPECT_EQ(Copied(again), 2u);
    ExpectSameTables(source.Account(), copy.Account());
}

TEST_F(AccountCopyTest, GoesOnAfterAnInterruptionAtAnyTable)
{
    const std::size_t tables = 34;
    // Each copy is interrupted in the table behind the one where the last one was.
    for (std::size_t table = 1; table <= tables; ++table) {
        const std::string place = "table " + std::to_string(table) + " of 34: ";
        EXPECT_EQ(RefusalOf(InterruptedAt(place)), "interrupted");
        EXPECT_EQ(copy.Rows("select count(*) from Kavelin_Copy where cState = N'whole'"),
                  std::to_string(table - 1) + "\n");
        CopyOptions within;
        within.onProgress = [&](const std::string& text) {
            if (text.starts_with(place) && text.ends_with(" rows"))
                throw Error("interrupted");
        };
        if (table % 4 == 0) {
            EXPECT_EQ(RefusalOf(within), "interrupted");
        }
        CopyOptions one = InterruptedAt("table " + std::to_string(table + 1) + " of ");
        EXPECT_EQ(RefusalOf(one), table < tables ? "interrupted" : "nothing was refused");
    }
    const CopyResult rest = CopyAll();
    EXPECT_EQ(Copied(rest), 0u);
    EXPECT_TRUE(rest.differences.empty());
    ExpectSameTables(source.Account(), copy.Account());
}

TEST_F(AccountCopyTest, LeavesATableEmptyThatIsInterruptedWithin)
{
    CopyOptions options = InterruptedAt("Inventory, 3 of 3 rows");
    EXPECT_EQ(RefusalOf(options), "interrupted");
    EXPECT_EQ(copy.Rows("select cInvCode from Inventory"), "");
    EXPECT_EQ(copy.Rows("select cState from Kavelin_Copy where cTable = N'Inventory'"), "begun\n");
    EXPECT_TRUE(CopyAll().differences.empty());
    ExpectSameTables(source.Account(), copy.Account());
}

TEST_F(AccountCopyTest, WritesNothingWhereTheTargetHoldsOtherRows)
{
    copy.Run("insert into Vendor (cVenCode, cVenName) values (N'V', N'V')");
    EXPECT_EQ(RefusalOf(),
              "The target holds rows that no copy put there: Vendor (1 row). Nothing was written. "
              "To have them deleted and replaced, add --replace.");
    EXPECT_EQ(copy.Rows("select cInvCode from Inventory"), "");
    EXPECT_EQ(copy.Rows("select name from sysobjects where name = N'Kavelin_Copy'"), "");
    EXPECT_EQ(copy.Rows("select cVenCode from Vendor"), "V\n");
}

TEST_F(AccountCopyTest, ReplacesOtherRowsWhenTold)
{
    copy.Run("insert into Vendor (cVenCode, cVenName) values (N'V', N'V')");
    CopyOptions options;
    options.replace = true;
    EXPECT_TRUE(CopyAll(options).differences.empty());
    EXPECT_EQ(copy.Rows("select cVenCode from Vendor"), "");
    ExpectSameTables(source.Account(), copy.Account());
}

TEST_F(AccountCopyTest, TouchesOnlyTheTablesChosen)
{
    copy.Run("insert into Vendor (cVenCode, cVenName) values (N'V', N'V')");
    CopyOptions options;
    options.choice.tables = {"pursettlevouchs", "UA_Period"};
    EXPECT_EQ(CopyAll(options).tables.size(), 2u);
    EXPECT_EQ(copy.Rows("select cInvCode from Inventory"), "");
    EXPECT_EQ(copy.Rows("select ID from Pursettlevouchs"), "1\n2\n");
}

TEST_F(AccountCopyTest, KnowsItsOwnAccountByAnyName)
{
    CopyOptions options;
    options.replace = true;
    const auto itself = source.Target();
    EXPECT_EQ(Refusal(source.Account(), *itself, options), "FROM and TO are the same account.");
    EXPECT_EQ(source.Rows("select ID from Pursettlevouchs"), "1\n2\n");
    EXPECT_EQ(source.Rows("select name from sysobjects where name = N'Kavelin_Copy'"), "");
}

TEST_F(AccountCopyTest, KeepsThePeriodsOfOtherAccounts)
{
    copy.Run(
        "insert into VosSystem..UA_Period (cAcc_ID, iYear, iID, dBegin, dEnd)"
        " values (N'009', 2001, 1, '20010101', '20010131')");
    CopyOptions options;
    options.choice.targetId = "007";
    EXPECT_TRUE(CopyAll(options).differences.empty());
    EXPECT_EQ(copy.Rows("select cAcc_ID, iYear from VosSystem..UA_Period order by cAcc_ID"),
              "007|2008\n009|2001\n");
}

TEST_F(AccountCopyTest, NamesTheRowAndColumnOfABadValue)
{
    source.Run("drop table Person");
    source.Run("create table Person (cPersonCode nvarchar(20), cPersonName nvarchar(400))");
    source.Run("insert into Person values (N'it''s', N'" + std::string(61, 'x') + "'), (N'P2', N'ok')");
    EXPECT_EQ(RefusalOf().substr(0, 56), "Table Person, cPersonCode N'it''s', column cPersonName: ");
    EXPECT_EQ(copy.Rows("select cPersonCode from Person"), "");
}

TEST_F(AccountCopyTest, RefusesTextWhereANumberBelongs)
{
    source.Run("drop table Pursettlevouchs");
    source.Run("create table Pursettlevouchs (ID int, iSVPrice nvarchar(20))");
    source.Run("insert into Pursettlevouchs values (7, N'12.5'), (8, N'twelve')");
    const std::string refusal = RefusalOf();
    EXPECT_TRUE(refusal.starts_with("Table Pursettlevouchs, ID 8, column iSVPrice: ")) << refusal;
    EXPECT_EQ(copy.Rows("select ID from Pursettlevouchs"), "");
}

TEST_F(AccountCopyTest, RefusesANullWhereNoneMayStand)
{
    source.Run("drop table Vendor");
    source.Run("create table Vendor (cVenCode nvarchar(20), cVenName nvarchar(98))");
    source.Run("insert into Vendor values (N'V1', NULL)");
    EXPECT_EQ(RefusalOf(), "Table Vendor, cVenCode N'V1', column cVenName: the column takes no NULL.");
}

// Lets some statements through and fails at all others, as if the program had ended there.
class EndingConnection : public Connection {
  public:
    EndingConnection(Connection& inner, int statements) : cnnInner(inner), lngLeft(statements) {}

    void SetCursorLocation(CursorLocation) override {}
    void SetConnectionString(const std::string&) override {}
    void SetConnectionTimeout(std::int32_t) override {}
    void SetCommandTimeout(std::int32_t) override {}
    void Open(const std::string&, const std::string&, std::int32_t) override {}
    void Close() override {}
    ConnectionState State() const override { return cnnInner.State(); }
    void Cancel() noexcept override {}

    std::int64_t Execute(const std::string& sql) override
    {
        Count();
        return cnnInner.Execute(sql);
    }
    std::unique_ptr<Recordset> OpenRecordset(const std::string& sql, CursorLocation location, CursorType type,
                                             LockType lock) override
    {
        Count();
        return cnnInner.OpenRecordset(sql, location, type, lock);
    }

  private:
    void Count()
    {
        if (--lngLeft >= 0)
            return;
        DatabaseError::Details details;
        details.strMessage = "ended";
        throw DatabaseError(details);
    }

    Connection& cnnInner;
    int lngLeft;
};

class EndingTarget : public CopyTarget {
  public:
    EndingTarget(CopyTarget& inner, int statements) : objInner(inner), cnnAccount(inner.Account(), statements)
    {
    }

    Connection& Account() override { return cnnAccount; }
    bool MayDropViews() const override { return objInner.MayDropViews(); }
    std::unique_ptr<RowWriter> Open(const SchemaObject& table, const Columns& columns) override
    {
        return objInner.Open(table, columns);
    }

  private:
    CopyTarget& objInner;
    EndingConnection cnnAccount;
};

TEST_F(AccountCopyTest, GoesOnAfterItEndedAtAnyStatement)
{
    CopyOptions options;
    options.choice.tables = {"Inventory", "Pursettlevouchs"};
    bool ended = true;
    for (int statements = 0; ended; ++statements) {
        copy.Run("delete from Inventory");
        copy.Run("delete from Pursettlevouchs");
        copy.Run(
            "if exists (select name from sysobjects where name = N'Kavelin_Copy') drop table Kavelin_Copy");
        EndingTarget ending(*target, statements);
        const std::string refusal = Refusal(source.Account(), ending, options);
        ended = refusal == "ended";
        EXPECT_TRUE(ended || refusal == "nothing was refused") << refusal;
        EXPECT_EQ(RefusalOf(options), "nothing was refused") << "after " << statements << " statements";
        for (const std::string sql :
             {"select * from Inventory order by cInvCode", "select * from Pursettlevouchs order by ID"})
            EXPECT_EQ(copy.Rows(sql), source.Rows(sql)) << "after " << statements << " statements";
    }
}

// Hands rows on, but changes one value on the way.
class Tampered : public CopyTarget {
  public:
    Tampered(CopyTarget& inner, std::string table, std::string column, Value value)
        : objInner(inner),
          strTable(std::move(table)),
          strColumn(std::move(column)),
          varValue(std::move(value))
    {
    }

    Connection& Account() override { return objInner.Account(); }
    bool MayDropViews() const override { return true; }

    std::unique_ptr<RowWriter> Open(const SchemaObject& table, const Columns& columns) override
    {
        struct Writer : RowWriter {
            void Append(std::span<const Value> row) override
            {
                std::vector<Value> changed(row.begin(), row.end());
                if (place < changed.size() && !done)
                    changed[place] = value;
                done = true;
                inner->Append(changed);
            }
            void Finish() override { inner->Finish(); }

            std::unique_ptr<RowWriter> inner;
            std::size_t place = 0;
            Value value;
            bool done = false;
        };
        auto writer = std::make_unique<Writer>();
        writer->inner = objInner.Open(table, columns);
        writer->place = columns.size();
        for (std::size_t i = 0; i < columns.size(); ++i)
            if (table.name == strTable && columns[i]->name == strColumn)
                writer->place = i;
        writer->value = varValue;
        return writer;
    }

  private:
    CopyTarget& objInner;
    std::string strTable, strColumn;
    Value varValue;
};

TEST_F(AccountCopyTest, TellsADifferenceThatCameIntoTheCopy)
{
    Tampered tampered(*target, "Pursettlevouchs", "iSVPrice", Value(Decimal(1, 4)));
    const CopyResult result = Copy(source.Account(), tampered, {});
    ASSERT_EQ(result.differences.size(), 1u);
    EXPECT_EQ(result.differences[0].table, "Pursettlevouchs");
    EXPECT_EQ(result.differences[0].what, "sum of iSVPrice");
    EXPECT_EQ(result.differences[0].source, "922337203685477.5808");
    EXPECT_EQ(result.differences[0].target, "0.0002");
    // The same command mends it.
    EXPECT_TRUE(CopyAll().differences.empty());
    ExpectSameTables(source.Account(), copy.Account());
}

TEST_F(AccountCopyTest, TellsALostRowThroughItsCount)
{
    Tampered tampered(*target, "Person", "cPersonName", Value::Null());
    source.Run("insert into Person values (N'P1', N'Li')");
    const CopyResult result = Copy(source.Account(), tampered, {});
    ASSERT_EQ(result.differences.size(), 1u);
    EXPECT_EQ(result.differences[0].what, "values of cPersonName");
}

// --- accounts of another make ---------------------------------------------------------------------

TEST_F(AccountCopyTest, TakesTheRowsOfViewsWhereTheTablesBelowAreOthers)
{
    OpenAccount company(folder / "company.kavelin", OpenAccount::Made::Bare);
    company.Run("create table Docs (no int, day datetime, who nvarchar(20))");
    company.Run("insert into Docs values (7, '20080131', NULL), (9, '20080201', N'anna')");
    company.Run(
        "create view rpt_rdrecordsIA870 as"
        " select no as ID, N'01' as cVouType, day as dVouDate, who as cAccounter, 2.5 as iQuantity from Docs");
    company.Run("create table rdrecord (ID int, cSource nvarchar(60))");
    company.Run("insert into rdrecord values (1, N'x')");

    EXPECT_TRUE(Copy(company.Account(), *target).differences.empty());
    EXPECT_EQ(copy.Rows("select ID, cVouType, dVouDate, cAccounter, iQuantity, cFree1 from rpt_rdrecordsIA870"
                        " order by ID"),
              "7|01|2008-01-31|NULL|2.5|NULL\n9|01|2008-02-01|anna|2.5|NULL\n");
    EXPECT_EQ(copy.Rows("select ID, cSource from rdrecord"), "1|x\n");
    // Other views stay.
    EXPECT_EQ(copy.Rows("select xtype from sysobjects where name = N'rdrecords'"), "V\n");
    EXPECT_TRUE(Copy(company.Account(), *target).tables.back().wasThere);
}

TEST_F(AccountCopyTest, CopiesACopyThatHoldsRowsOfViews)
{
    OpenAccount company(folder / "company.kavelin", OpenAccount::Made::Bare);
    company.Run("create table rdrecord (ID int, cSource nvarchar(60))");
    company.Run("insert into rdrecord values (1, N'x')");
    Copy(company.Account(), *target);

    OpenAccount second(folder / "second.kavelin");
    const auto into = second.Target();
    EXPECT_TRUE(Copy(copy.Account(), *into).differences.empty());
    EXPECT_EQ(second.Rows("select ID, cSource from rdrecord"), "1|x\n");
}

}  // namespace
}  // namespace kavelin::snapshot
