// Views of the ledger library.
#include "automation/Border.h"
#include "automation/Connections.h"
#include "automation/HostView.h"
#include "automation/Views.h"

namespace kavelin::automation {

namespace {

// The host's object behind an object of the ledger library; nothing where there is none.
template <class T>
HostObjectPtr ObjectBehind(T& object)
{
    const auto* view = dynamic_cast<const HostView*>(&object);
    return view ? view->Object() : nullptr;
}

class LedgerLoginView : public LedgerLogin, public HostView {
  public:
    using HostView::HostView;

    void Initialise(const std::string& connectionText, const std::string& passwordText, bool first,
                    bool second) override
    {
        Call("Initialise", {Value(connectionText), Value(passwordText), Value(first), Value(second)});
    }
    std::shared_ptr<Connection> DbConnection() override
    {
        return ConnectionOf(Object()->Get("DbConnection"), Named("DbConnection"));
    }
};

class LedgerParamsView : public LedgerParams, public HostView {
  public:
    using HostView::HostView;

    std::string Year() override { return ReadText("Year"); }
    std::string ValueStyle() override { return ReadText("ValueStyle"); }
    std::string InventoryQualifier() override { return ReadText("InventoryQualifier"); }
};

// A dictionary whose keys are the numbers from 1 on, as texts.
class YearsView : public HostView {
  public:
    using HostView::HostView;

    std::vector<std::string> Years() const
    {
        std::vector<std::string> years;
        const std::int32_t count = ReadNumber("Count");
        for (std::int32_t i = 1; i <= count; ++i)
            years.push_back(CallForText("Item", {Value(std::to_string(i))}));
        return years;
    }
};

class LedgerPubView : public LedgerPub, public HostView {
  public:
    using HostView::HostView;

    void SetLogin(std::shared_ptr<LedgerLogin> login) override
    {
        Write("Login", HostObjectPtr(std::move(login)));
    }
    bool Reload(const std::string& first, const std::string& second) override
    {
        const Variant answer = Call("Reload", {Value(first), Value(second)});
        return !IsNothing(answer) && ToBoolean(ValueOf(answer, Named("Reload")));
    }
    // The months come back in the last two arguments.
    std::pair<int, int> GetYearMonthRange(const std::string& year, Connection& account) override
    {
        std::vector<Variant> arguments = {Value(year), ObjectOfAccount(account), Value(0), Value(0)};
        CallAcross(*Object(), "GetYearMonthRange", arguments);
        const auto month = [&](std::size_t i) {
            return ToInt32(ValueOf(arguments[i], Named("GetYearMonthRange")));
        };
        return {month(2), month(3)};
    }
    std::vector<std::string> GetAccountYears(const std::string& year, Connection& account) override
    {
        const Variant years = Call("GetAccountYears", {Value(year), ObjectOfAccount(account)});
        return YearsView(LateBoundOf(As<LateBound>(years, Named("GetAccountYears"))), "GetAccountYears")
            .Years();
    }
    void GetAccountYearParams(LedgerLogin& login, const std::string& year, LedgerParams& params) override
    {
        Call("GetAccountYearParams", {ObjectBehind(login), Value(year), ObjectBehind(params)});
    }
};

}  // namespace

template <>
std::shared_ptr<LedgerLogin> ViewOf(std::shared_ptr<LateBound> object)
{
    return std::make_shared<LedgerLoginView>(std::move(object), "LedgerLogin");
}

template <>
std::shared_ptr<LedgerParams> ViewOf(std::shared_ptr<LateBound> object)
{
    return std::make_shared<LedgerParamsView>(std::move(object), "LedgerParams");
}

template <>
std::shared_ptr<LedgerPub> ViewOf(std::shared_ptr<LateBound> object)
{
    return std::make_shared<LedgerPubView>(std::move(object), "LedgerPub");
}

}  // namespace kavelin::automation
