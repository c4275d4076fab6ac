#include "host/Config.h"

#include "frame/Errors.h"
#include "host/HostErrors.h"
#include "host/ReportRun.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace kavelin::host {
namespace {

class ConfigTest : public testing::Test {
  protected:
    ConfigTest()
        : strFolder(std::filesystem::temp_directory_path() / ("kavelin-config-" + std::to_string(::getpid())))
    {
        std::filesystem::remove_all(strFolder);
        std::filesystem::create_directories(strFolder / "here");
        std::filesystem::create_directories(strFolder / "xdg/kavelin");
        dicEnvironment["XDG_CONFIG_HOME"] = (strFolder / "xdg").string();
    }
    ~ConfigTest() override { std::filesystem::remove_all(strFolder); }

    void Work(std::string_view text) { std::ofstream(strFolder / "here/kavelin.toml") << text; }
    void User(std::string_view text) { std::ofstream(strFolder / "xdg/kavelin/kavelin.toml") << text; }

    ConfigSources Sources() const
    {
        return {[this](const std::string& name) -> std::optional<std::string> {
                    const auto found = dicEnvironment.find(name);
                    return found == dicEnvironment.end() ? std::nullopt : std::optional(found->second);
                },
                strFolder / "here"};
    }

    Config Load(const Flags& flags = {}) const { return Config::Load(flags, Sources()); }

    // The message of a UsageError, with the test's folder as "~".
    std::string Refusal(const std::function<void()>& act) const
    {
        try {
            act();
        } catch (const UsageError& e) {
            std::string text = e.what();
            for (auto at = text.find(strFolder.string()); at != text.npos; at = text.find(strFolder.string()))
                text.replace(at, strFolder.string().size(), "~");
            return text;
        }
        return "";
    }

    std::filesystem::path strFolder;
    std::map<std::string, std::string> dicEnvironment;
};

TEST_F(ConfigTest, TakesTheNearestOfFlagEnvironmentFolderAndUser)
{
    const AccountSettings none;
    EXPECT_EQ(Load().Language(none), "zh-CN");
    EXPECT_EQ(Load().User(none), "demo");
    EXPECT_EQ(Load().Account(), std::nullopt);

    User("language = \"en-US\"\nuser = \"u1\"\naccount = \"a.kavelin\"\n");
    EXPECT_EQ(Load().Language(none), "en-US");
    EXPECT_EQ(Load().User(none), "u1");

    Work("language = \"zh-cn\"\nuser = \"u2\"\n");
    EXPECT_EQ(Load().Language(none), "zh-CN");
    EXPECT_EQ(Load().User(none), "u2");
    EXPECT_EQ(Load().Account()->path, (strFolder / "here/a.kavelin").string());

    dicEnvironment["KAVELIN_LANGUAGE"] = "en-US";
    dicEnvironment["KAVELIN_USER"] = "u3";
    dicEnvironment["KAVELIN_ACCOUNT"] = "/data/b.kavelin";
    EXPECT_EQ(Load().Language(none), "en-US");
    EXPECT_EQ(Load().User(none), "u3");
    EXPECT_EQ(Load().Account()->path, "/data/b.kavelin");

    Flags flags;
    flags.language = "zh-CN";
    flags.user = "u4";
    flags.account = "./c.kavelin";
    EXPECT_EQ(Load(flags).Language(none), "zh-CN");
    EXPECT_EQ(Load(flags).User(none), "u4");
    EXPECT_EQ(Load(flags).Account()->path, (strFolder / "here/c.kavelin").string());
}

TEST_F(ConfigTest, ReadsAccountsAndUsers)
{
    Work(
        "account = \"demo\"\nuser = \"top\"\n"
        "[accounts.demo]\npath = \"data/demo.kavelin\"\nid = \"002\"\nuser = \"anna\"\nlanguage = \"en-US\"\n"
        "year = 2008\nmonth = 7\npassword_env = \"DEMO_PASSWORD\"\n"
        "[accounts.other]\nconnection = \"Embedded Account=/x.kavelin\"\n"
        "[users.anna]\nwarehouses = [\"01\", \"02\"]\noperators = []\n");
    const Config config = Load();
    const auto account = config.Account();
    EXPECT_EQ(account->path, (strFolder / "here/data/demo.kavelin").string());
    EXPECT_EQ(account->id, "002");
    EXPECT_EQ(config.User(*account), "anna");
    EXPECT_EQ(config.Language(*account), "en-US");
    EXPECT_EQ(config.Year(*account), 2008);
    EXPECT_EQ(config.Month(*account), 7);
    EXPECT_EQ(config.Account("OTHER").connectionString, "Embedded Account=/x.kavelin");
    EXPECT_EQ(config.User(config.Account("other")), "top");

    const UserRights& rights = config.Users().at("anna");
    EXPECT_EQ(rights.warehouses, (std::vector<std::string>{"01", "02"}));
    EXPECT_EQ(rights.operators, std::vector<std::string>());
    EXPECT_EQ(rights.departments, std::nullopt);
}

TEST_F(ConfigTest, TakesPasswordsFromTheEnvironmentOnly)
{
    Work("[accounts.demo]\npath = \"d\"\npassword_env = \"DEMO_PASSWORD\"\n");
    EXPECT_EQ(
        Refusal([&] { Load().Password(Load().Account("demo")); }),
        "The account demo takes its password from the environment variable DEMO_PASSWORD, which is not set.");
    dicEnvironment["DEMO_PASSWORD"] = "secret";
    EXPECT_EQ(Load().Password(Load().Account("demo")), "secret");

    const std::string hint =
        "a connection string holds no password here: put it into the environment variable KAVELIN_PASSWORD, "
        "or name another one by password_env of an account in kavelin.toml.";
    for (const char* text :
         {"Server=s;Password=secret", "Server=s; pwd =secret", "Server='s;t';PWD = \"se;cret\""})
        EXPECT_EQ(Refusal([&] { Load().Account(text); }), "account: " + hint);
    Work("[accounts.demo]\nconnection = \"Server=s;PWD=secret\"\n");
    EXPECT_EQ(Refusal([&] { Load(); }), "~/here/kavelin.toml, line 2: accounts.demo.connection: " + hint);
}

constexpr const char* kServer = "Provider=SQLOLEDB;Data Source=tcp:db,1433;Initial Catalog=Books;User ID=sa";

TEST_F(ConfigTest, TakesThePasswordOfAServerFromItsOwnVariableThenTheCommonOneThenTheUser)
{
    Work(std::string("[accounts.books]\nconnection = \"") + kServer + "\"\npassword_env = \"BOOKS\"\n");
    std::string asked;
    ConfigSources sources = Sources();
    sources.askPassword = [&](const std::string& question) {
        asked = question;
        return std::optional<std::string>("typed");
    };
    const Config config = Config::Load({}, sources);
    EXPECT_EQ(config.Password(config.Account(kServer)), "typed");
    EXPECT_EQ(asked, "Password for tcp:db,1433: ");

    dicEnvironment["KAVELIN_PASSWORD"] = "common";
    asked.clear();
    EXPECT_EQ(config.Password(config.Account(kServer)), "common");
    dicEnvironment["BOOKS"] = "own";
    EXPECT_EQ(config.Password(config.Account("books")), "own");
    EXPECT_EQ(asked, "");
}

TEST_F(ConfigTest, NamesTheVariableWhereNobodyTellsThePasswordOfAServer)
{
    EXPECT_EQ(
        Refusal([&] { Load().Password(Load().Account(kServer)); }),
        "The login to tcp:db,1433 takes a password: put it into the environment variable KAVELIN_PASSWORD, "
        "or name another one by password_env in kavelin.toml.");
}

TEST_F(ConfigTest, AsksForNoPasswordWhereTheLoginTakesNone)
{
    for (const char* text :
         {"Embedded Account=x", "Provider=SQLOLEDB;Data Source=db;Integrated Security=SSPI;User ID=me",
          "Driver=/lib/sqlite.so;Database=file", "DSN=books"})
        EXPECT_EQ(Load().Password(Load().Account(text)), "") << text;
}

TEST_F(ConfigTest, NamesFileLineAndSettingOfWhatMakesNoSense)
{
    const struct {
        std::string_view text, error;
    } cases[] = {
        {"langauge = \"zh-CN\"",
         "~/here/kavelin.toml, line 1: langauge is not known. Did you mean language?"},
        {"user = 5", "~/here/kavelin.toml, line 1: user takes a text."},
        {"\nlanguage = \"de-DE\"",
         "~/here/kavelin.toml, line 2: language: \"de-DE\" is no language of this program, which are zh-CN "
         "and en-US."},
        {"[accounts.a]\npath = \"x\"\nyear = \"2008\"",
         "~/here/kavelin.toml, line 3: accounts.a.year takes a number from 1900 to 9998."},
        {"[accounts.a]\npath = \"x\"\npassword = \"y\"",
         "~/here/kavelin.toml, line 3: accounts.a.password is not read from a file: name an environment "
         "variable by password_env."},
        {"[accounts.a]\npath = \"x\"\nconnection = \"y\"",
         "~/here/kavelin.toml, line 2: accounts.a.path: an account has either a connection or a path."},
        {"[users.a]\nwarehouses = \"01\"",
         "~/here/kavelin.toml, line 2: users.a.warehouses takes a list of texts."},
        {"accounts = 1", "~/here/kavelin.toml, line 1: accounts takes tables."},
    };
    for (const auto& c : cases) {
        Work(c.text);
        EXPECT_EQ(Refusal([&] { Load(); }), c.error);
    }
    Work("user = ");
    EXPECT_EQ(Refusal([&] { Load(); }).rfind("~/here/kavelin.toml, line 1: ", 0), 0u);
}

TEST_F(ConfigTest, RefusesAnUnknownAccountWithItsNearestName)
{
    Work("[accounts.warehouse]\npath = \"x\"\n");
    EXPECT_EQ(
        Refusal([&] { Load().Account("warehose"); }),
        "There is no account \"warehose\" in kavelin.toml and no file of that name. Did you mean warehouse?");
}

TEST_F(ConfigTest, TakesAnExistingFileForAPathWhateverItsName)
{
    std::ofstream(strFolder / "here/a=b") << "";
    std::ofstream(strFolder / "here/plain") << "";
    EXPECT_EQ(Load().Account("a=b").path, (strFolder / "here/a=b").string());
    EXPECT_EQ(Load().Account("plain").path, (strFolder / "here/plain").string());
    EXPECT_EQ(Load().Account("Embedded Account=x").connectionString, "Embedded Account=x");
}

TEST_F(ConfigTest, RefusesVariablesThatMakeNoSense)
{
    const AccountSettings account;
    dicEnvironment["KAVELIN_YEAR"] = "last";
    EXPECT_EQ(Refusal([&] { Load().Year(account); }), "KAVELIN_YEAR takes a number from 1900 to 9998.");
    dicEnvironment["KAVELIN_MONTH"] = "13";
    EXPECT_EQ(Refusal([&] { Load().Month(account); }), "KAVELIN_MONTH takes a number from 1 to 12.");
    dicEnvironment["KAVELIN_LANGUAGE"] = "latin";
    EXPECT_EQ(Refusal([&] { Load().Language(account); }),
              "KAVELIN_LANGUAGE: \"latin\" is no language of this program, which are zh-CN and en-US.");
}

TEST_F(ConfigTest, FindsTheFoldersOfTheUser)
{
    EXPECT_EQ(ConfigFolder(Sources()), strFolder / "xdg/kavelin");
    dicEnvironment["HOME"] = "/users/anna";
    EXPECT_EQ(DataFolder(Sources()), "/users/anna/.local/share/kavelin");
    dicEnvironment["XDG_CONFIG_HOME"] = "relative";
    EXPECT_EQ(ConfigFolder(Sources()), "/users/anna/.config/kavelin");
    dicEnvironment.clear();
    EXPECT_THROW(ConfigFolder(Sources()), Error);
}

TEST_F(ConfigTest, MakesTheLoginOfAnAccount)
{
    Work(
        "[accounts.demo]\npath = \"/d.kavelin\"\nlanguage = \"en-US\"\nyear = 2008\n"
        "[accounts.text]\nconnection = \"Embedded Account=/d.kavelin\"\n");
    const AccountLogin login = LoginFor(Load(), Load().Account("demo"));
    EXPECT_EQ(login.ConnectionText(), "Embedded Account=/d.kavelin;Locale=en-US");
    EXPECT_EQ(login.year, 2008);
    EXPECT_EQ(login.month, 0);
    EXPECT_EQ(login.accountId, "001");
    EXPECT_EQ(login.settingsFile, strFolder / "xdg/kavelin/settings.json");
    EXPECT_EQ(LoginFor(Load(), Load().Account("text")).ConnectionText(),
              "Embedded Account=/d.kavelin;Locale=zh-CN");
}

}  // namespace
}  // namespace kavelin::host
