#include "host/output/OutputFile.h"

#include "frame/Errors.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <sstream>

namespace kavelin::host {
namespace {

namespace fs = std::filesystem;

class OutputFileTest : public testing::Test {
  protected:
    OutputFileTest()
    {
        std::string pattern = (fs::temp_directory_path() / "kavelin-output-XXXXXX").string();
        objFolder = mkdtemp(pattern.data());
    }
    ~OutputFileTest() override { fs::remove_all(objFolder); }

    static std::string Read(const fs::path& path)
    {
        std::ostringstream text;
        text << std::ifstream(path, std::ios::binary).rdbuf();
        return text.str();
    }

    int FileCount() const
    {
        return static_cast<int>(std::distance(fs::directory_iterator(objFolder), fs::directory_iterator()));
    }

    fs::path objFolder;
};

TEST_F(OutputFileTest, AppearsOnlyWhenFinished)
{
    const fs::path path = objFolder / "rows.csv";
    OutputFile file(path.string());
    file.Stream() << "a\r\n1\r\n";
    EXPECT_FALSE(fs::exists(path));
    file.Finish();
    EXPECT_EQ(Read(path), "a\r\n1\r\n");
    EXPECT_EQ(FileCount(), 1);
}

TEST_F(OutputFileTest, LeavesTheOldFileWhereItIsNotFinished)
{
    const fs::path path = objFolder / "rows.csv";
    std::ofstream(path) << "old";
    {
        OutputFile file(path.string());
        file.Stream() << "half";
    }
    EXPECT_EQ(Read(path), "old");
    EXPECT_EQ(FileCount(), 1);
}

TEST_F(OutputFileTest, ReplacesTheTargetOfALinkAndKeepsTheLink)
{
    const fs::path path = objFolder / "rows.csv", link = objFolder / "latest.csv";
    std::ofstream(path) << "old";
    fs::create_symlink("rows.csv", link);
    OutputFile file(link.string());
    file.Stream() << "new";
    file.Finish();
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(Read(path), "new");
}

TEST_F(OutputFileTest, WritesToADeviceInPlace)
{
    OutputFile file("/dev/null");
    file.Stream() << "gone";
    file.Finish();
    EXPECT_FALSE(fs::is_regular_file("/dev/null"));
}

TEST_F(OutputFileTest, TellsOfAFullDisk)
{
    OutputFile file("/dev/full");
    file.Stream() << "text";
    EXPECT_THROW(file.Finish(), Error);
}

TEST_F(OutputFileTest, RefusesAFolderAndAPlaceThatIsNotThere)
{
    EXPECT_THROW(OutputFile(objFolder.string()), Error);
    EXPECT_THROW(OutputFile(""), Error);
    EXPECT_THROW(OutputFile((objFolder / "no" / "rows.csv").string()), Error);
    EXPECT_EQ(FileCount(), 0);
}

TEST_F(OutputFileTest, ThrowsEverythingUnfinishedAwayWhenAsked)
{
    OutputFile file((objFolder / "rows.csv").string());
    file.Stream() << "half" << std::flush;
    OutputFile::AbandonAll();
    EXPECT_EQ(FileCount(), 0);
}

}  // namespace
}  // namespace kavelin::host
