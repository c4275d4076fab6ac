#include "embedded/EmbeddedAccount.h"

#include "embedded/engine/AccountFiles.h"
#include "embedded/engine/EngineErrors.h"
#include "embedded/engine/Instance.h"

namespace kavelin::embedded {

void EmbeddedAccount::Flush()
{
    try {
        objInstance->Flush();
    } catch (const DuckError& error) {
        throw DatabaseError(DetailsOf(error, {}, {}));
    }
}

std::vector<ObjectInfo> EmbeddedAccount::Objects(Database database) const
{
    std::vector<ObjectInfo> objects;
    if (database == Database::Connection)
        return objects;
    for (const auto& [name, object] : (*objInstance->Objects().Current())[static_cast<std::size_t>(database)])
        objects.push_back(*object);
    return objects;
}

const std::string& EmbeddedAccount::Path() const
{
    return objInstance->Path();
}

std::shared_ptr<EmbeddedAccount> OpenAccount(const std::string& path)
{
    return std::make_shared<EmbeddedAccount>(Instance::Of(path));
}

void CreateAccount(const std::string& path)
{
    CreateAccountFiles(path);
}

std::unique_ptr<EmbeddedConnection> NewConnection()
{
    return std::make_unique<EmbeddedConnection>();
}

}  // namespace kavelin::embedded
