#include "embedded/engine/AccountFiles.h"

#include "embedded/EmbeddedAccount.h"
#include "embedded/engine/TestAccount.h"
#include "frame/Errors.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include <sys/wait.h>
#include <unistd.h>

namespace kavelin::embedded {

namespace {

std::string ErrorOfOpening(const std::string& path)
{
    try {
        OpenAccount(path);
    } catch (const ConnectionError& error) {
        return error.what();
    }
    return "opened";
}

void WriteFile(const std::string& path, const std::string& content)
{
    std::ofstream(path, std::ios::binary) << content;
}

bool Holds(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

TEST(AccountFiles, StandBesideEachOther)
{
    EXPECT_EQ(SystemFileOf("/data/demo.kavelin"), "/data/demo.system.kavelin");
    EXPECT_EQ(SystemFileOf("/data/demo"), "/data/demo.system.kavelin");

    const TestAccount account;
    EXPECT_TRUE(std::filesystem::exists(account.Path()));
    EXPECT_TRUE(std::filesystem::exists(SystemFileOf(account.Path())));
}

TEST(AccountFiles, AreNotMadeOverWhatIsThere)
{
    const TestFolder folder;
    WriteFile(folder.File("a.kavelin"), "mine");
    EXPECT_THROW(CreateAccount(folder.File("a.kavelin")), ConnectionError);
    EXPECT_EQ(std::filesystem::file_size(folder.File("a.kavelin")), 4u);
    EXPECT_FALSE(std::filesystem::exists(folder.File("a.system.kavelin")));

    WriteFile(folder.File("b.system.kavelin"), "mine");
    EXPECT_THROW(CreateAccount(folder.File("b.kavelin")), ConnectionError);
    EXPECT_FALSE(std::filesystem::exists(folder.File("b.kavelin")));

    EXPECT_THROW(CreateAccount(folder.File("none/c.kavelin")), ConnectionError);
}

TEST(AccountFiles, ThatCannotBeOpenedAreRefusedInOneSentence)
{
    const TestAccount account;
    const TestFolder& folder = account.Folder();

    const std::string missing = folder.File("missing.kavelin");
    EXPECT_TRUE(Holds(ErrorOfOpening(missing), "There is no account '" + missing + "'"));
    EXPECT_FALSE(std::filesystem::exists(missing));

    EXPECT_TRUE(Holds(ErrorOfOpening(folder.File("")), "is a folder"));

    WriteFile(folder.File("text.kavelin"), std::string(20000, 'x'));
    WriteFile(folder.File("text.system.kavelin"), "");
    EXPECT_EQ(ErrorOfOpening(folder.File("text.kavelin")),
              "The file '" + folder.File("text.kavelin") + "' is no account.");
    EXPECT_EQ(std::filesystem::file_size(folder.File("text.kavelin")), 20000u);

    // Another program's database.
    {
        DuckDatabase duck;
        Session session(duck);
        session.Run("ATTACH '" + folder.File("other.kavelin") + "' AS other");
        session.Run("CREATE TABLE other.main.t (a INTEGER)");
    }
    std::filesystem::copy_file(SystemFileOf(account.Path()), folder.File("other.system.kavelin"));
    EXPECT_EQ(ErrorOfOpening(folder.File("other.kavelin")),
              "The file '" + folder.File("other.kavelin") + "' is no account.");

    // Without its system database.
    std::filesystem::copy_file(account.Path(), folder.File("half.kavelin"));
    EXPECT_TRUE(Holds(ErrorOfOpening(folder.File("half.kavelin")), "half.system.kavelin' is missing"));

    EXPECT_TRUE(Holds(ErrorOfOpening("/dev/null"), "missing") ||
                Holds(ErrorOfOpening("/dev/null"), "no account"));
    EXPECT_TRUE(Holds(ErrorOfOpening(""), "names no account"));
}

TEST(AccountFiles, InAFolderThatCannotBeWrittenAreRefused)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "the superuser writes everywhere";
    const TestAccount account;
    const std::filesystem::path folder = std::filesystem::path(account.Path()).parent_path();
    std::filesystem::permissions(folder,
                                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    EXPECT_TRUE(Holds(ErrorOfOpening(account.Path()), "cannot be written"));
    std::filesystem::permissions(folder, std::filesystem::perms::owner_all);
    EXPECT_EQ(ErrorOfOpening(account.Path()), "opened");
}

// Run by the test below as a process of its own.
TEST(AccountFilesOfAnotherProcess, DISABLED_AreInUse)
{
    const char* path = std::getenv("KAVELIN_TEST_ACCOUNT");
    ASSERT_NE(path, nullptr);
    EXPECT_EQ(ErrorOfOpening(path), std::string("The account '") + path + "' is in use by another program.");
}

TEST(AccountFiles, AreOpenInOneProcessAtATime)
{
    const TestAccount account;
    const auto connection = account.Connect();
    connection->Execute("select 1 as a into T");

    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        setenv("KAVELIN_TEST_ACCOUNT", account.Path().c_str(), 1);
        execl("/proc/self/exe", "other", "--gtest_also_run_disabled_tests",
              "--gtest_filter=AccountFilesOfAnotherProcess.*", "--gtest_brief=1", nullptr);
        _exit(3);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;

    // Nothing is damaged by the attempt.
    connection->Close();
    EXPECT_EQ(ShowRows(*account.Connect(), "select a from T"), "1\n");
}

}  // namespace

}  // namespace kavelin::embedded
