#include "frame/RowArguments.h"

#include "frame/Guards.h"
#include "frame/Value.h"

namespace kavelin {

std::shared_ptr<LoginContext> EarlyRowArguments::Login()
{
    return objArguments.Login();
}

std::string EarlyRowArguments::Action()
{
    return objArguments.Action();
}

std::string EarlyRowArguments::Cell(const std::string& column)
{
    if (!objRow)
        objRow = objArguments.RelateData();
    return Existing(objRow).GetData(column);
}

std::shared_ptr<LoginContext> LateRowArguments::Login()
{
    return ObjectOf<LoginContext>(objArguments.Get("Login"), "Login");
}

std::string LateRowArguments::Action()
{
    return ToText(ValueOf(objArguments.Get("Action"), "Action"));
}

std::string LateRowArguments::Cell(const std::string& column)
{
    if (!objRow)
        objRow = ObjectOf<LateBound>(objArguments.Get("RelateData"), "RelateData");
    return ToText(ValueOf(objRow->Call("GetData", {Value(column)}), column));
}

}  // namespace kavelin
