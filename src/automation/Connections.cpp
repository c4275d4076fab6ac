#include "automation/Connections.h"

#include "automation/ObjectNames.h"
#include "automation/Views.h"
#include "database/ado/AdoConnection.h"
#include "frame/ModPub.h"

namespace kavelin::automation {

namespace {

std::shared_ptr<LateBound> MakeRecordset()
{
    return LateBoundOf(CurrentPlatform().CreateObject(std::string(kRecordsetName)));
}

}  // namespace

std::shared_ptr<Connection> ConnectionOf(const Variant& connection, std::string_view what)
{
    const auto* object = std::get_if<HostObjectPtr>(&connection);
    if (object)
        if (const auto held = std::dynamic_pointer_cast<ConnectionObject>(*object))
            return held->Connection();
    const auto late = object ? LateBoundOf(*object) : nullptr;
    if (!late)
        ThrowNotOfKind(what);
    return std::make_shared<ado::AdoConnection>(late, MakeRecordset);
}

std::shared_ptr<ConnectionObject> ConnectionLike(const ConnectionObject& before, const HostObjectPtr& object)
{
    const auto ado = std::dynamic_pointer_cast<ado::AdoConnection>(before.Connection());
    const auto late = LateBoundOf(object);
    return std::make_shared<ConnectionObject>(ado && late ? ado->Over(late)
                                                          : ConnectionOf(object, "connection"));
}

HostObjectPtr AdoObjectOf(Connection& connection)
{
    const auto* ado = dynamic_cast<const ado::AdoConnection*>(&connection);
    return ado ? ado->Object() : nullptr;
}

HostObjectPtr ObjectOfAccount(Connection& account)
{
    const auto& shared = ModPub().gcnnAccount;
    if (auto object = AdoObjectOf(account))
        return object;
    return shared.get() == &account ? std::make_shared<ConnectionObject>(shared) : nullptr;
}

}  // namespace kavelin::automation
