#include "com/TypeInfo.h"

#include "com/Module.h"
#include "com/Utf16.h"

namespace kavelin::com {

HRESULT TypeInfoOf(std::string_view id, ITypeInfo** info)
{
    Pointer<ITypeLib> library;
    const HRESULT loaded = LoadTypeLibEx(ModulePath().c_str(), REGKIND_NONE, library.Receive());
    if (FAILED(loaded))
        return loaded;
    GUID guid = {};
    const HRESULT read = CLSIDFromString(Wide(id).c_str(), &guid);
    return FAILED(read) ? read : library->GetTypeInfoOfGuid(guid, info);
}

}  // namespace kavelin::com
