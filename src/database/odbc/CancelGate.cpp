#include "database/odbc/CancelGate.h"

#include <sql.h>

namespace kavelin::odbc {

void CancelGate::Enter(void* statement)
{
    const std::lock_guard lock(objMutex);
    objStatement = statement;
    blnCancelled = false;
}

void CancelGate::Leave()
{
    const std::lock_guard lock(objMutex);
    objStatement = nullptr;
}

void CancelGate::Cancel() noexcept
{
    // The lock keeps the handle alive until the driver has taken note.
    const std::lock_guard lock(objMutex);
    if (!objStatement)
        return;
    blnCancelled = true;
    SQLCancel(objStatement);
}

bool CancelGate::IsCancelled() const
{
    const std::lock_guard lock(objMutex);
    return blnCancelled;
}

}  // namespace kavelin::odbc
