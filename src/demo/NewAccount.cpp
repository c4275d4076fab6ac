#include "demo/NewAccount.h"

#include "demo/Scripts.h"
#include "embedded/engine/AccountFiles.h"
#include "host/HostConnection.h"
#include "host/StatementLog.h"

namespace kavelin::demo {

std::shared_ptr<Connection> ConnectTo(const std::filesystem::path& account)
{
    host::StatementObservers observers;
    if (std::shared_ptr<host::StatementObserver> log = host::LogFromEnvironment())
        observers.push_back(std::move(log));
    return host::ConnectionSource(std::move(observers))
        .Open("account", host::EmbeddedConnectionString(account.string(), "zh-CN"), "");
}

void MakeWhole(const std::filesystem::path& account,
               const std::function<void(const std::filesystem::path&)>& make)
{
    const std::string whole = account.string(), part = whole + ".part";
    const std::string wholeSystem = embedded::SystemFileOf(whole);
    // The system database gets its name first, so one that stands alone beside a part is that part's.
    if (std::filesystem::exists(part) && !std::filesystem::exists(account))
        std::filesystem::remove(wholeSystem);
    embedded::RemoveAccountFiles(part);
    embedded::CheckNewAccountPath(whole);

    make(part);
    std::filesystem::rename(embedded::SystemFileOf(part), wholeSystem);
    std::filesystem::rename(part, account);
}

NewAccount::Files::Files(std::string path) : account(std::move(path))
{
    embedded::CreateAccount(account);
}

NewAccount::Files::~Files()
{
    if (!kept)
        embedded::RemoveAccountFiles(account);
}

NewAccount::NewAccount(const std::filesystem::path& account)
    : objFiles(account.string()), objAccount(embedded::OpenAccount(account.string()))
{
    const std::shared_ptr<Connection> connection = ConnectTo(account);
    RunScripts(*connection, "schema");
    connection->Close();
}

NewAccount::~NewAccount() = default;

void NewAccount::Keep()
{
    objAccount->Flush();
    objFiles.kept = true;
}

}  // namespace kavelin::demo
