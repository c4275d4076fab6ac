#include "embedded/engine/TestAccount.h"

#include <gtest/gtest.h>

namespace kavelin::embedded {
namespace {

class ViewFacts : public testing::Test {
  protected:
    ViewFacts() : objConnection(objAccount.Connect())
    {
        for (const char* batch : {
                 "create table T (code nvarchar(10), name nvarchar(10))\r\n"
                 "insert into T values (N'A1', N'x'), (N'B2', N'Y ')\r\n"
                 "create table W (code nvarchar(10))\r\n"
                 "insert into W values (N'A1')",
                 "create view V as select t.code, t.name from T t left join (select distinct code from W) w "
                 "on w.code = t.code",
                 "create view VV as select code + N'-' as code from V",
             })
            objConnection->Execute(batch);
    }

    // Whether DuckDB is asked to fold the codes.
    bool Folds(const std::string& view)
    {
        const std::string text = objConnection->Explain("select distinct code from " + view);
        return text.find("lower(") != std::string::npos || text.find("rtrim(") != std::string::npos;
    }

    TestAccount objAccount;
    std::unique_ptr<EmbeddedConnection> objConnection;
};

TEST_F(ViewFacts, AreThoseOfTheColumnsBelow)
{
    EXPECT_FALSE(Folds("T"));
    EXPECT_FALSE(Folds("V"));
    EXPECT_FALSE(Folds("VV"));
    const std::string names = objConnection->Explain("select distinct name from V");
    EXPECT_NE(names.find("lower(rtrim("), std::string::npos) << names;
}

TEST_F(ViewFacts, GoWithTheFirstValueThatIsOtherwise)
{
    objConnection->Execute("insert into T values (N'a1', N'z')");
    EXPECT_TRUE(Folds("V"));
    EXPECT_TRUE(Folds("VV"));
    EXPECT_EQ(ShowRows(*objConnection, "select count(*) from V where code = N'A1'"), "2\n");
    EXPECT_EQ(ShowRows(*objConnection, "select count(*) from VV where code = N'a1-'"), "2\n");
    EXPECT_EQ(ShowRows(*objConnection, "select count(*) from (select distinct code from VV) d"), "2\n");
}

TEST_F(ViewFacts, AreStillThereWhenTheAccountIsOpenedAgain)
{
    objConnection->Close();
    objConnection = objAccount.Connect();
    EXPECT_FALSE(Folds("VV"));
    objConnection->Execute("update T set code = N'b2 ' where code = N'B2'");
    objConnection->Close();
    objConnection = objAccount.Connect();
    EXPECT_TRUE(Folds("VV"));
    EXPECT_EQ(ShowRows(*objConnection, "select name from V where code = N'B2'"), "\"Y \"\n");
}

TEST_F(ViewFacts, AreForgottenWithATableThatIsGone)
{
    objConnection->Execute("drop view VV\r\ndrop view V");
    objConnection->Execute("create view V as select code from W");
    objConnection->Execute("create view VV as select code from V");
    EXPECT_FALSE(Folds("VV"));
    objConnection->Execute("drop view V");
    objConnection->Execute("create view V as select name as code from T");
    EXPECT_TRUE(Folds("VV"));
    objConnection->Execute("drop view V");
    EXPECT_TRUE(Folds("VV"));
}

}  // namespace
}  // namespace kavelin::embedded
