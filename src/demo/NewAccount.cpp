#include "demo/NewAccount.h"

#include "demo/Scripts.h"
#include "embedded/engine/AccountFiles.h"
#include "host/HostConnection.h"
#include "host/StatementLog.h"

#include <system_error>

namespace kavelin::demo {

std::shared_ptr<Connection> ConnectTo(const std::filesystem::path& account)
{
    host::StatementObservers observers;
    if (std::shared_ptr<host::StatementObserver> log = host::LogFromEnvironment())
        observers.push_back(std::move(log));
    return host::ConnectionSource(std::move(observers))
        .Open("account", host::EmbeddedConnectionString(account.string(), "zh-CN"), "");
}

NewAccount::Files::Files(std::string path) : account(std::move(path))
{
    embedded::CreateAccount(account);
}

NewAccount::Files::~Files()
{
    if (kept)
        return;
    for (const std::string& file : {account, embedded::SystemFileOf(account)})
        for (const char* ending : {"", ".wal"}) {
            std::error_code ignored;
            std::filesystem::remove(file + ending, ignored);
        }
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
