// The options form of the ABC analysis, and the settings behind it.
#include "analysis/AbcOptions.h"
#include "analysis/FrmOpt.h"
#include "frame/Errors.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kavelin::test {

namespace {

const std::string kStore = "存货核算, ABCOption872, ";

class AbcOptionsForm : public testing::Test {
  protected:
    AbcOptionsForm()
    {
        for (const AbcOption& option : kAbcOptions)
            host.Answers().settings[kStore + std::string(option.key)] = option.byDefault;
    }

    FrmOpt Open() { return FrmOpt(CurrentPlatform().CreateFormHost()); }

    static void Type(FrmOpt& form, const std::string& field, const std::string& text)
    {
        for (FormField& candidate : form.Fields())
            if (candidate.name == field)
                candidate.text = text;
    }

    std::string Setting(const std::string& key) { return host.Answers().settings[kStore + key]; }

    std::string LastMessage()
    {
        std::string last;
        for (const std::string& line : host.Events().Lines())
            if (line.starts_with("FormHost.ShowMessage "))
                last = line.substr(21);
        return last;
    }

    RecordingHost host;
};

const std::string kMoneyRefused = "成本比重设置不正确，请修改！, 64, 提示！";
const std::string kQuantityRefused = "实物量比重设置不正确，请修改！, 0, 提示！";

}  // namespace

TEST_F(AbcOptionsForm, OpensWithTheEightSettingsAndItsCaptions)
{
    host.Answers().settings[kStore + "M2"] = "65";
    host.Answers().texts["Orvo.IA.chhssql.ABC.Command1"] = "OK";
    host.Answers().texts["Orvo.IA.chhssql.ABC.Command2"] = "Cancel";
    FrmOpt form = Open();

    EXPECT_EQ(form.Title(), "ABC分类控制比");
    std::string shown;
    for (const FormField& field : form.Fields())
        shown += field.name + "=" + field.text + (field.forInput ? "* " : " ");
    EXPECT_EQ(shown, "Edit1=100 Edit2=65* Edit3=10* Edit4=0 Edit5=0 Edit6=20* Edit7=50* Edit8=100 ");
    ASSERT_EQ(form.Commands().size(), 2u);
    EXPECT_EQ(form.Commands()[0].name + " " + form.Commands()[0].caption, "Command1 OK");
    EXPECT_EQ(form.Commands()[1].name + " " + form.Commands()[1].caption, "Command2 Cancel");
}

TEST_F(AbcOptionsForm, ShowsTheDefaultsOfAnEmptyStoreAndWritesNothingByIt)
{
    host.Answers().settings.clear();
    FrmOpt form = Open();
    std::string shown;
    for (const FormField& field : form.Fields())
        shown += field.text + " ";
    EXPECT_EQ(shown, "100 70 10 0 0 20 50 100 ");
    EXPECT_TRUE(host.Answers().settings.empty());
}

TEST_F(AbcOptionsForm, LeadsFromFieldToFieldByEnter)
{
    const FrmOpt form = Open();
    EXPECT_EQ(form.FieldAfter("Edit2"), "Edit3");
    EXPECT_EQ(form.FieldAfter("Edit3"), "Edit6");
    EXPECT_EQ(form.FieldAfter("Edit6"), "Edit7");
    for (const char* field : {"Edit7", "Edit1", "Edit4", "Edit5", "Edit8"})
        EXPECT_EQ(form.FieldAfter(field), "") << field;
}

TEST_F(AbcOptionsForm, RefusesMoneySharesThatDoNotFall)
{
    const struct {
        const char *a, *b;
        bool accepted;
    } cases[] = {
        {"70", "70", false}, {"70", "71", false}, {"101", "10", false}, {"100", "10", true},
        {"70", "0", false},  {"0", "0", false},   {"", "10", false},    {"70", "abc", false},
        {"70", "69", true},  {"70.5", "1", true}, {"70", "-5", true},   {"80 %", "10", true},
    };
    for (const auto& c : cases) {
        FrmOpt form = Open();
        Type(form, "Edit2", c.a);
        Type(form, "Edit3", c.b);
        host.Events().Clear();
        EXPECT_EQ(form.Click("Command1"), c.accepted) << c.a << " " << c.b;
        EXPECT_EQ(LastMessage(), c.accepted ? "" : kMoneyRefused) << c.a << " " << c.b;
    }
}

TEST_F(AbcOptionsForm, RefusesQuantitySharesThatDoNotRise)
{
    const struct {
        const char *b, *c;
        bool accepted;
    } cases[] = {
        {"20", "20", false}, {"50", "20", false}, {"20", "101", false}, {"20", "100", true},
        {"0", "50", false},  {"20", "", false},   {"-20", "50", true},
    };
    for (const auto& c : cases) {
        FrmOpt form = Open();
        Type(form, "Edit6", c.b);
        Type(form, "Edit7", c.c);
        host.Events().Clear();
        EXPECT_EQ(form.Click("Command1"), c.accepted) << c.b << " " << c.c;
        EXPECT_EQ(LastMessage(), c.accepted ? "" : kQuantityRefused) << c.b << " " << c.c;
    }
}

TEST_F(AbcOptionsForm, WritesAllEightBoxesInOrderAndOnlyOnOk)
{
    FrmOpt form = Open();
    Type(form, "Edit1", "anything");
    Type(form, "Edit2", "60");
    host.Events().Clear();
    EXPECT_TRUE(form.Click("Command1"));
    std::string written;
    for (const std::string& line : host.Events().Lines())
        written += line + "\n";
    const std::string write = "SettingsStore.Write " + kStore;
    EXPECT_EQ(written, write + "M1 = anything\n" + write + "M2 = 60\n" + write + "M3 = 10\n" + write +
                           "M4 = 0\n" + write + "N1 = 0\n" + write + "N2 = 20\n" + write + "N3 = 50\n" +
                           write + "N4 = 100\n");
}

TEST_F(AbcOptionsForm, WritesNothingWhereItRefusesOrIsCancelled)
{
    FrmOpt form = Open();
    Type(form, "Edit2", "5");
    EXPECT_FALSE(form.Click("Command1"));
    EXPECT_EQ(Setting("M2"), "70");
    EXPECT_TRUE(form.Click("Command2"));
    EXPECT_EQ(Setting("M2"), "70");
    EXPECT_THROW(form.Click("Command3"), Error);
}

TEST_F(AbcOptionsForm, TestsNeitherTheEndsOfTheScalesNorMoreThanThePairThatIsRefusedFirst)
{
    FrmOpt form = Open();
    for (const char* field : {"Edit1", "Edit4", "Edit5", "Edit8"})
        Type(form, field, "999");
    EXPECT_TRUE(form.Click("Command1"));
    EXPECT_EQ(Setting("M1") + Setting("M4") + Setting("N1") + Setting("N4"), "999999999999");

    Type(form, "Edit2", "5");
    Type(form, "Edit7", "5");
    host.Events().Clear();
    EXPECT_FALSE(form.Click("Command1"));
    EXPECT_EQ(host.Events().Text(), "FormHost.ShowMessage " + kMoneyRefused + "\n");
}

// Every read and write of the form's own: what fails reaches whoever shows the form.
TEST_F(AbcOptionsForm, StopsAtEachStepThatFails)
{
    const auto use = [this] {
        FrmOpt form = Open();
        form.Click("Command1");
        form.Unload();
    };
    use();  // which has the texts made
    host.Events().Clear();
    use();
    const std::size_t steps = host.Events().Lines().size();
    ASSERT_GT(steps, 26u);  // eight settings read, ten texts, eight settings written and the end
    for (std::size_t k = 1; k <= steps; ++k) {
        host.Events().Clear();
        host.Events().FailAt(k);
        EXPECT_THROW(use(), PlannedFailure) << k;
        EXPECT_EQ(host.Events().Lines().size(), k);
    }
}

TEST_F(AbcOptionsForm, TellsTheTextsThatItHasClosed)
{
    FrmOpt form = Open();
    host.Events().Clear();
    form.Unload();
    EXPECT_EQ(host.Events().Text(), "ResourceObject.Unload\n");
}

TEST_F(AbcOptionsForm, ReadsThresholdsAsShares)
{
    host.Answers().settings[kStore + "M2"] = "66.5";
    const AbcThresholds thresholds = ReadAbcThresholds();
    EXPECT_EQ(thresholds.strMoneyRate, (std::array<std::string, 4>{"1", "0.665", "0.1", "0"}));
    EXPECT_EQ(thresholds.strNumRate, (std::array<std::string, 4>{"0", "0.2", "0.5", "1"}));
}

TEST_F(AbcOptionsForm, FillsAnEmptyStoreWithTheDefaultsAtTheFirstRead)
{
    host.Answers().settings.clear();
    const AbcThresholds thresholds = ReadAbcThresholds();
    EXPECT_EQ(thresholds.strMoneyRate, (std::array<std::string, 4>{"1", "0.7", "0.1", "0"}));
    EXPECT_EQ(thresholds.strNumRate, (std::array<std::string, 4>{"0", "0.2", "0.5", "1"}));
    for (const AbcOption& option : kAbcOptions)
        EXPECT_EQ(Setting(std::string(option.key)), option.byDefault);
}

TEST_F(AbcOptionsForm, ReadsTheStoreInOrderAndWritesTheDefaultsWhereTheFirstReadFails)
{
    host.Answers().settings.clear();
    host.Events().Clear();
    ReadAbcThresholds();
    std::string expected = "SettingsStore.Read " + kStore + "M1\n";
    for (const AbcOption& option : kAbcOptions)
        expected += "SettingsStore.Write " + kStore + std::string(option.key) + " = " +
                    std::string(option.byDefault) + "\n";
    for (const AbcOption& option : kAbcOptions)
        expected += "SettingsStore.Read " + kStore + std::string(option.key) + "\n";
    EXPECT_EQ(host.Events().Text(), expected);
}

TEST_F(AbcOptionsForm, LeavesAStoreThatCannotBeReadToItsReader)
{
    host.Events().FailAt("SettingsStore.Read " + kStore + "M3");
    EXPECT_THROW(ReadAbcThresholds(), PlannedFailure);
    EXPECT_EQ(Setting("M3"), "10");
}

// What was read before the faulty setting stays for this run; the store holds the defaults from then on.
TEST_F(AbcOptionsForm, WritesTheDefaultsOverASettingThatIsNoNumber)
{
    host.Answers().settings[kStore + "M2"] = "60";
    host.Answers().settings[kStore + "N3"] = "half";
    const AbcThresholds thresholds = ReadAbcThresholds();
    EXPECT_EQ(thresholds.strMoneyRate[1], "0.6");
    EXPECT_EQ(thresholds.strNumRate[2], "0.5");
    EXPECT_EQ(Setting("M2"), "70");
}

}  // namespace kavelin::test
