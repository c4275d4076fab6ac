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
#include "reports/ProfileAccounts.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>

namespace kavelin::test {

namespace {

namespace fs = std::filesystem;

// The accounts of this program.
class Accounts {
  public:
    std::string Of(const demo::Profile& profile)
    {
        const fs::path folder = objFolder / "", path = ProfileAccountIn(folder, profile);
        const fs::path ready = ReadyAccounts();
        if (!fs::exists(path) && ready.empty())
            MakeProfileAccount(folder, profile);
        else if (!fs::exists(path))
            CopyProfileAccount(ready, folder, profile);
        return path.string();
    }

  private:
    TestFolder objFolder;
};

}  // namespace

host::ConnectionSource LoggedConnections()
{
    host::StatementObservers observers;
    if (auto log = host::LogFromEnvironment())
        observers.push_back(std::move(log));
    return host::ConnectionSource(std::move(observers));
}

host::AccountLogin LoginTo(const std::string& path, const std::string& language, const std::string& user)
{
    host::Flags flags;
    flags.account = path;
    flags.language = language;
    if (!user.empty())
        flags.user = user;
    const host::Config config = host::Config::Load(flags);
    host::AccountLogin login = host::LoginFor(config, *config.Account());
    login.settingsFile =
        fs::path(path).parent_path() / "settings.json";  // not those of whoever runs the tests
    return login;
}

std::string AccountOf(const demo::Profile& profile)
{
    static Accounts accounts;
    return accounts.Of(profile);
}

SmallAccount::SmallAccount() : strPath((objFolder / "small.kavelin").string())
{
    demo::CreateEmptyAccount(strPath);
}

void SmallAccount::Run(const std::string& sql)
{
    const auto connection =
        LoggedConnections().Open("setup", host::EmbeddedConnectionString(strPath, "zh-CN"), "");
    connection->Execute(sql);
    connection->Close();
}

AccountCopy::AccountCopy(const demo::Profile& profile)
{
    static int number = 0;
    const fs::path original = AccountOf(profile);
    const fs::path folder = original.parent_path() / ("copy-" + std::to_string(++number));
    fs::create_directories(folder);
    CopyProfileAccount(original.parent_path(), folder, profile);
    strPath = (folder / original.filename()).string();
}

AccountCopy::~AccountCopy()
{
    std::error_code ignored;
    fs::remove_all(fs::path(strPath).parent_path(), ignored);
}

AccountReport::AccountReport(const std::string& path, const std::string& report,
                             const std::vector<std::string>& settings, const std::string& language)
    : strReport(report),
      objRun(std::make_unique<host::ReportRun>(LoginTo(path, language), LoggedConnections()))
{
    RunAgain(settings);
}

void AccountReport::RunAgain(const std::vector<std::string>& settings)
{
    host::FilterInput input(host::TemplateOf(strReport), host::ValuePolicy::Checked);
    for (const std::string& setting : settings)
        input.Set(setting);
    objRun->Run(host::FindReport(strReport), input);
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
