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
        const Dispatch& found = FindMethod(member, arguments.size());
        if (found.call)
            return found.call(arguments);
        std::vector<Variant> dropped = arguments;
        return found.callByReference(dropped);
    }

    Variant CallByReference(std::string_view member, std::vector<Variant>& arguments) override
    {
        const Dispatch& found = FindMethod(member, arguments.size());
        return found.call ? found.call(arguments) : found.callByReference(arguments);
    }

  private:
    const Dispatch& FindMethod(std::string_view member, std::size_t arguments) const
    {
        const Dispatch& found = Find(member);
        if (!found.call && !found.callByReference)
            throw Error(std::string(found.name) + " is a property.");
        if (arguments > found.arguments || arguments + found.optional < found.arguments)
            throw Error(std::string(found.name) + " takes " + std::to_string(found.arguments) +
                        " arguments, not " + std::to_string(arguments) + ".");
        return found;
    }

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

Dispatch IndexedProperty(std::string_view name, std::function<Value(std::uint8_t index)> get,
                         std::function<void(std::uint8_t index, const Value& value)> put)
{
    const auto access = [name, get = std::move(get), put = std::move(put)](const auto& arguments) -> Variant {
        const std::uint8_t index = ToByte(ValueOf(arguments[0], name));
        if (arguments.size() == 1)
            return get(index);
        put(index, ValueOf(arguments[1], name));
        return Value();
    };
    const auto refuse = [name] { throw Error(std::string(name) + " has an index."); };
    Dispatch property = Method(name, 2, access);
    property.optional = 1;
    property.get = [refuse]() -> Variant { return refuse(), Value(); };
    property.put = [refuse](const Variant&) { refuse(); };
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

Dispatch MethodByReference(std::string_view name, std::size_t arguments,
                           std::function<Variant(std::vector<Variant>&)> call)
{
    Dispatch method{.name = name};
    method.callByReference = std::move(call);
    method.arguments = arguments;
    return method;
}

}  // namespace kavelin
