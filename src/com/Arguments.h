// The arguments of a call through automation, brought into the order and the kinds of the called member.
#pragma once

#include "com/Windows.h"
#include "component/Component.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace kavelin::com {

// Why a call can't be made, as Invoke tells it.
struct BadCall {
    HRESULT code;
    UINT argument = 0;  // place in the caller's list, where one argument is to blame
};

class Arguments {
  public:
    // The parameters of a member; `put` is the value of a property that is put behind them. Positional and
    // named arguments are both taken; the dispatch identifier of a parameter is its place from 0. An optional
    // argument that was left out before one that was given is empty. Throws BadCall.
    Arguments(std::span<const Parameter> parameters, std::optional<Parameter> put, const DISPPARAMS& given);

    std::vector<Variant>& Values() { return arrValues; }

    // Puts into the caller's variables what a call left in the arguments by reference. A variable whose type
    // can't hold it stays as it is.
    void WriteBack() noexcept;

  private:
    // Place in the caller's list of each parameter; none if it was left out.
    std::vector<std::optional<UINT>> PlacesOf(const DISPPARAMS& given) const;

    std::vector<Parameter> arrParameters;  // with the value that is put
    bool blnPut;
    std::vector<VARIANTARG*> arrGiven;  // null: left out
    std::vector<Variant> arrValues;
    std::vector<Variant> arrBefore;  // what the values were before the call
};

}  // namespace kavelin::com
