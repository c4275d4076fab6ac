#include "host/doctor/ParameterSteps.h"

#include "host/doctor/FakeAccount.h"

#include <gtest/gtest.h>

namespace kavelin::host {
namespace {

using Lines = std::vector<std::string>;
using Parameter = std::vector<Value>;

std::vector<Parameter> Sensible()
{
    const Value none = Value::Null();
    return {
        {Value("IA"), Value("cValueStyle"), Value("按仓库核算"), none},
        {Value("ia"), Value("dIAStartDate"), Value("2008-01-01"), none},
        {Value("IA"), Value("dIAFirstDate"), none, Value("2008-01-01")},
        {Value("IA"), Value("bSaleType"), Value("销售出库单"), none},
        {Value("IA"), Value("cEnDispAccountStyle"), Value("发出商品"), none},
        {Value("IA"), Value("cEstimate"), Value("单到回冲"), none},
        {Value("ST"), Value("cDispLevel"), Value("12"), none},
        {Value("OM"), Value("dOMFirstDate"), Value(""), none},
    };
}

DoctorStep Examine(std::vector<Parameter> parameters)
{
    FakeAccount account;
    account.Gives("AccInformation", {{"cSysID", "cName", "cValue", "cDefault"}, std::move(parameters)});
    return ExamineParameters(account);
}

TEST(Parameters, PassWithSensibleValuesAndDefaults)
{
    const DoctorStep step = Examine(Sensible());
    EXPECT_EQ(step.outcome, StepOutcome::Ok);
    EXPECT_EQ(step.details, Lines{});
}

TEST(Parameters, FailWithoutOneThatReportsNeed)
{
    auto parameters = Sensible();
    parameters.erase(parameters.begin());
    const DoctorStep step = Examine(parameters);
    EXPECT_EQ(step.outcome, StepOutcome::Failed);
    ASSERT_EQ(step.details.size(), 1u);
    EXPECT_TRUE(step.details[0].starts_with(
        "IA cValueStyle is missing; it takes 按存货核算, 按部门核算, 按仓库核算: estimate-balance journal"))
        << step.details[0];
}

TEST(Parameters, FailWithValuesThatNoReportKnows)
{
    const struct {
        std::size_t parameter;
        const char* value;
        const char* complaint;
    } cases[] = {
        {0, "按心情核算", "IA cValueStyle is \"按心情核算\"; it takes "},
        {1, "1.1.2008", "IA dIAStartDate is \"1.1.2008\"; it takes a date YYYY-MM-DD"},
        {1, "2008-13-01", "IA dIAStartDate is \"2008-13-01\"; it takes a date YYYY-MM-DD"},
        {3, "maybe", "IA bSaleType is \"maybe\"; it takes 发出商品, 销售出库单, 销售发票, true, false"},
        {6, "1-2", "cDispLevel is \"1-2\"; it takes digits"},
        {7, "soon", "OM dOMFirstDate is \"soon\"; it takes a date YYYY-MM-DD"},
    };
    for (const auto& c : cases) {
        auto parameters = Sensible();
        parameters[c.parameter][2] = Value(c.value);
        const DoctorStep step = Examine(parameters);
        EXPECT_EQ(step.outcome, StepOutcome::Failed);
        ASSERT_EQ(step.details.size(), 1u) << c.value;
        EXPECT_TRUE(step.details[0].starts_with(c.complaint)) << step.details[0];
    }
}

TEST(Parameters, FailWhereOneStandsTwice)
{
    auto parameters = Sensible();
    parameters.push_back({Value("IA"), Value("CDISPLEVEL"), Value("12"), Value::Null()});
    const DoctorStep step = Examine(parameters);
    EXPECT_EQ(step.details, Lines{"cDispLevel stands 2 times: stock-summary"});
}

TEST(Parameters, AreSkippedWhereTheirTableCannotBeRead)
{
    FakeAccount account;
    account.Fails("AccInformation", ErrorOf(208, "Invalid object name 'AccInformation'."));
    EXPECT_EQ(ExamineParameters(account).outcome, StepOutcome::Skipped);
}

}  // namespace
}  // namespace kavelin::host
