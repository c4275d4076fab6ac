// Late-bound object of the dialog callbacks.
#include "component/Dispatch.h"
#include "component/Factories.h"
#include "filter/clsFilterControl.h"
#include "frame/Value.h"

#include <utility>
#include <vector>

namespace kavelin {

namespace {

// A view is kept only here, so the caller holds it while the callback runs.
std::shared_ptr<ReportFilterObject> FilterOf(const Variant& argument)
{
    return automation::As<ReportFilterObject>(argument, "the filter");
}

std::string KeyOf(const Variant& argument)
{
    return ToText(ValueOf(argument, "sKey"));
}

// Calls `callback` with what stands in `argument` as ReturnViewClass; what it leaves there goes back.
template <class Callback>
Variant WithViewClass(Variant& argument, Callback callback)
{
    Value view = ValueOf(argument, "ReturnViewClass");
    callback(view);
    argument = view;
    return Value();
}

}  // namespace

std::shared_ptr<LateBound> CreateFilterControl()
{
    auto control = std::make_shared<clsFilterControl>();
    clsFilterControl& members = *control;
    using Arguments = std::vector<Variant>;

    std::vector<Dispatch> dispatch = {
        Method("CallBack_FilterInit", 1,
               [&members](const Arguments& arguments) {
                   return Variant(members.CallBack_FilterInit(*FilterOf(arguments[0])));
               }),
        Method("CallBack_ValueChange", 2,
               [&members](const Arguments& arguments) {
                   members.CallBack_ValueChange(KeyOf(arguments[0]), *FilterOf(arguments[1]));
                   return Variant(Value());
               }),
        MethodByReference("CallBack_FilterClick", 2,
                          [&members](Arguments& arguments) {
                              bool cancel = false;
                              const Value result =
                                  members.CallBack_FilterClick(*FilterOf(arguments[0]), cancel);
                              arguments[1] = Value(cancel);
                              return Variant(result);
                          }),
        MethodByReference("CallBack_ReportViewChange", 3,
                          [&members](Arguments& arguments) {
                              return WithViewClass(arguments[2], [&](Value& view) {
                                  members.CallBack_ReportViewChange(KeyOf(arguments[0]),
                                                                    *FilterOf(arguments[1]), view);
                              });
                          }),
        MethodByReference("CallBack_ReportViewInit", 2,
                          [&members](Arguments& arguments) {
                              return WithViewClass(arguments[1], [&](Value& view) {
                                  members.CallBack_ReportViewInit(*FilterOf(arguments[0]), view);
                              });
                          }),
        Method("InitAccMonth", 0,
               [&members](const Arguments&) {
                   members.InitAccMonth();
                   return Variant(Value());
               }),
    };
    return MakeLateBound(control, std::move(dispatch));
}

}  // namespace kavelin
