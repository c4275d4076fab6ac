#include "support/tds/Faults.h"

#include "frame/Text.h"

namespace kavelin::test::tds {

Fault Denied(std::string text, const std::string& permission, const std::string& database)
{
    Fault fault;
    fault.kind = FaultKind::Refuse;
    fault.text = std::move(text);
    fault.again = true;
    fault.message = {262, 14, permission + " permission denied in database '" + database + "'."};
    return fault;
}

Fault Missing(const std::string& name)
{
    Fault fault;
    fault.kind = FaultKind::Refuse;
    fault.text = name;
    fault.again = true;
    fault.message = {208, 16, "Invalid object name '" + name + "'."};
    return fault;
}

Fault NullWarnings()
{
    Fault remark;
    remark.kind = FaultKind::Remark;
    remark.again = true;
    remark.message = {8153, 10, "Warning: Null value is eliminated by an aggregate or other SET operation."};
    return remark;
}

void Faults::Order(Fault fault)
{
    const std::lock_guard lock(objMutex);
    lstFaults.push_back(std::move(fault));
}

void Faults::Clear()
{
    const std::lock_guard lock(objMutex);
    lstFaults.clear();
}

std::optional<Fault> Faults::Take(std::string_view batch)
{
    const std::string lower = ToLower(batch);
    const std::lock_guard lock(objMutex);
    for (auto fault = lstFaults.begin(); fault != lstFaults.end(); ++fault) {
        if (lower.find(ToLower(fault->text)) == std::string::npos)
            continue;
        if (fault->skip > 0) {
            --fault->skip;
            continue;
        }
        Fault taken = *fault;
        if (!fault->again)
            lstFaults.erase(fault);
        return taken;
    }
    return std::nullopt;
}

}  // namespace kavelin::test::tds
