#include "component/Dispatch.h"

#include "frame/Errors.h"
#include "frame/Text.h"

namespace kavelin {

namespace {

class DispatchedObject : public LateBound {
  public:
    DispatchedObject(std::shared_ptr<void> object, std::vector<Dispatch> members)
        : objTarget(std::move(object)), arrMembers(std::move(members))
    {
    }

    Variant Get(std::string_view member) override
    {
        const Dispatch& found = Find(member);
        if (!found.get)
            throw Error(std::string(found.name) + " is a method.");
        return found.get();
    }

    void Put(std::string_view member, const Variant& value) override
    {
        const Dispatch& found = Find(member);
        if (!found.put)
            throw Error(std::string(found.name) + " is a method.");
        found.put(value);
    }

    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override
    {
        const Dispatch& found = Find(member);
        if (!found.call)
            throw Error(std::string(found.name) + " is a property.");
        if (arguments.size() > found.arguments || arguments.size() + found.optional < found.arguments)
            throw Error(std::string(found.name) + " takes " + std::to_string(found.arguments) +
                        " arguments, not " + std::to_string(arguments.size()) + ".");
        return found.call(arguments);
    }

  private:
    const Dispatch& Find(std::string_view member) const
    {
        for (const Dispatch& candidate : arrMembers)
            if (EqualsNoCase(candidate.name, member))
                return candidate;
        throw Error("The object has no member " + std::string(member) + ".");
    }

    std::shared_ptr<void> objTarget;
    std::vector<Dispatch> arrMembers;
};

}  // namespace

std::shared_ptr<LateBound> MakeLateBound(std::shared_ptr<void> object, std::vector<Dispatch> members)
{
    return std::make_shared<DispatchedObject>(std::move(object), std::move(members));
}

Dispatch TextProperty(std::string_view name, std::function<std::string()> get,
                      std::function<void(const std::string&)> put)
{
    Dispatch property{.name = name};
    property.get = [get = std::move(get)] { return Variant(Value(get())); };
    property.put = [name, put = std::move(put)](const Variant& value) { put(ToText(ValueOf(value, name))); };
    return property;
}

Dispatch TextProperty(std::string_view name, std::string& field)
{
    return TextProperty(
        name, [&field] { return field; }, [&field](const std::string& text) { field = text; });
}

Dispatch ObjectProperty(std::string_view name, HostObjectPtr& field)
{
    Dispatch property{.name = name};
    property.get = [&field] { return Variant(field); };
    property.put = [name, &field](const Variant& value) {
        const auto* object = std::get_if<HostObjectPtr>(&value);
        if (!object)
            ThrowNotOfKind(name);
        field = *object;
    };
    return property;
}

Dispatch Method(std::string_view name, std::size_t arguments,
                std::function<Variant(const std::vector<Variant>&)> call)
{
    Dispatch method{.name = name};
    method.call = std::move(call);
    method.arguments = arguments;
    return method;
}

}  // namespace kavelin
