#include "reports/AccountReport.h"

#include "demo/AccountFiles.h"
#include "demo/DemoCompany.h"
#include "frame/Text.h"
#include "host/Config.h"
#include "host/FilterInput.h"
#include "host/FilterTemplate.h"
#include "host/HostConnection.h"
#include "host/Reports.h"
#include "host/StatementLog.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <map>

namespace kavelin::test {

namespace {

namespace fs = std::filesystem;

constexpr std::int64_t kLines = 6000;

// The accounts of this program.
class Accounts {
  public:
    Accounts() : objFolder(fs::temp_directory_path() / ("kavelin-reports-" + std::to_string(::getpid())))
    {
        fs::create_directories(objFolder);
    }
    ~Accounts()
    {
        std::error_code ignored;
        fs::remove_all(objFolder, ignored);
    }

    std::string Of(const demo::Profile& profile)
    {
        const fs::path path = objFolder / (std::string(profile.name) + ".kavelin");
        if (!fs::exists(path))
            demo::MakeDemoAccount(path, profile, kLines);
        return path.string();
    }

  private:
    fs::path objFolder;
};

host::ConnectionSource Connections()
{
    host::StatementObservers observers;
    if (auto log = host::LogFromEnvironment())
        observers.push_back(std::move(log));
    return host::ConnectionSource(std::move(observers));
}

}  // namespace

std::string AccountOf(const demo::Profile& profile)
{
    static Accounts accounts;
    return accounts.Of(profile);
}

SmallAccount::SmallAccount()
{
    static int number = 0;
    const fs::path folder = fs::temp_directory_path() /
                            ("kavelin-small-" + std::to_string(::getpid()) + "-" + std::to_string(++number));
    fs::create_directories(folder);
    strPath = (folder / "small.kavelin").string();
    demo::CreateEmptyAccount(strPath);
}

SmallAccount::~SmallAccount()
{
    std::error_code ignored;
    fs::remove_all(fs::path(strPath).parent_path(), ignored);
}

void SmallAccount::Run(const std::string& sql)
{
    const auto connection = Connections().Open("setup", host::EmbeddedConnectionString(strPath, "zh-CN"), "");
    connection->Execute(sql);
    connection->Close();
}

AccountReport::AccountReport(const std::string& path, const std::string& report,
                             const std::vector<std::string>& settings, const std::string& language)
{
    host::Flags flags;
    flags.account = path;
    flags.language = language;
    const host::Config config = host::Config::Load(flags);
    objRun = std::make_unique<host::ReportRun>(host::LoginFor(config, *config.Account()), Connections());
    host::FilterInput input(host::TemplateOf(report), host::ValuePolicy::Checked);
    for (const std::string& setting : settings)
        input.Set(setting);
    objRun->Run(host::FindReport(report), input);
}

AccountReport::AccountReport(const demo::Profile& profile, const std::string& report,
                             const std::vector<std::string>& settings)
    : AccountReport(AccountOf(profile), report, settings)
{
}

std::vector<std::vector<std::string>> AccountReport::Table(const std::string& sql)
{
    const auto rows =
        objRun->Account().OpenRecordset(ReplaceAll(sql, "{}", objRun->TableName()), CursorLocation::Client,
                                        CursorType::Static, LockType::ReadOnly);
    std::vector<std::vector<std::string>> table;
    for (; !rows->Eof(); rows->MoveNext()) {
        std::vector<std::string>& row = table.emplace_back();
        for (int field = 0; field < rows->FieldCount(); ++field) {
            const Value value = rows->Field(field);
            row.push_back(value.IsNull() ? "NULL" : ToText(value));
        }
    }
    return table;
}

std::string AccountReport::Rows(const std::string& sql)
{
    std::string text;
    for (const std::vector<std::string>& row : Table(sql)) {
        for (std::size_t i = 0; i < row.size(); ++i)
            text += (i == 0 ? "" : " | ") + row[i];
        text += '\n';
    }
    return text;
}

std::vector<std::string> ProfileNames()
{
    std::vector<std::string> names;
    for (const demo::Profile& profile : demo::Profiles())
        names.emplace_back(profile.name);
    return names;
}

std::string PlainName(std::string name)
{
    std::erase(name, '-');
    return name;
}

}  // namespace kavelin::test
