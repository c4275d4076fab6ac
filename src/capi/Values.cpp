#include "capi/Values.h"

#include "capi/BadCall.h"
#include "capi/ThreadState.h"
#include "frame/Text.h"

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <optional>
#include <utility>

namespace kavelin::capi {

namespace {

constexpr DateTime kFirstDate = std::chrono::sys_days(std::chrono::year(1) / 1 / 1);
constexpr DateTime kAfterLastDate = std::chrono::sys_days(std::chrono::year(10000) / 1 / 1);

std::string_view TextOf(const kavelin_value& value)
{
    const kavelin_text_view& text = value.as.text;
    if (!text.bytes && text.length != 0)
        throw BadArgument("A text has a length and no bytes.");
    const std::string_view view(text.bytes ? text.bytes : "", text.length);
    if (!IsUtf8(view))
        throw BadArgument("A text is no UTF-8.");
    return view;
}

Value DecimalOf(const kavelin_value& value)
{
    const std::string_view digits = TextOf(value);
    const std::optional<Decimal> decimal = Decimal::FromText(digits);
    if (!decimal)
        throw BadArgument("\"" + std::string(digits) + "\" is no decimal number of up to 38 digits.");
    return *decimal;
}

Value DateOf(const kavelin_value& value)
{
    const auto limit = kAfterLastDate.time_since_epoch().count();
    if (value.as.date < kFirstDate.time_since_epoch().count() || value.as.date >= limit)
        throw BadArgument("A date lies outside of the years 1 to 9999.");
    return DateTime(std::chrono::milliseconds(value.as.date));
}

char* CopyBytes(std::string_view text)
{
    auto* bytes = static_cast<char*>(std::malloc(text.size() + 1));
    if (!bytes)
        throw std::bad_alloc();
    std::memcpy(bytes, text.data(), text.size());
    bytes[text.size()] = '\0';
    return bytes;
}

// What needs no memory of its own; texts and decimals keep their kind only.
struct PlainContent {
    kavelin_value operator()(std::monostate) const { return kavelin_empty(); }
    kavelin_value operator()(Value::NullTag) const { return kavelin_null(); }
    kavelin_value operator()(bool content) const { return kavelin_of_boolean(content); }
    kavelin_value operator()(std::int64_t content) const { return kavelin_of_integer(content); }
    kavelin_value operator()(double content) const { return kavelin_of_double(content); }
    kavelin_value operator()(DateTime content) const
    {
        return kavelin_of_date(content.time_since_epoch().count());
    }
    kavelin_value operator()(const Decimal&) const { return kavelin_of_decimal(""); }
    kavelin_value operator()(const std::string&) const { return kavelin_of_text(""); }
};

bool HoldsBytes(const kavelin_value& value)
{
    return value.kind == KAVELIN_TEXT || value.kind == KAVELIN_DECIMAL;
}

}  // namespace

Variant ToVariant(const kavelin_value& value)
{
    switch (value.kind) {
        case KAVELIN_EMPTY: return Value();
        case KAVELIN_NULL: return Value::Null();
        case KAVELIN_BOOLEAN: return Value(value.as.boolean != 0);
        case KAVELIN_INTEGER: return Value(value.as.integer);
        case KAVELIN_DOUBLE: return Value(value.as.number);
        case KAVELIN_DECIMAL: return DecimalOf(value);
        case KAVELIN_DATE: return DateOf(value);
        case KAVELIN_TEXT: return Value(TextOf(value));
        case KAVELIN_OBJECT: return value.as.object ? CurrentThread().Find(value.as.object).object : nullptr;
    }
    throw BadArgument("There is no kind of value " + std::to_string(value.kind) + ".");
}

Variant TakeVariant(kavelin_value& value)
{
    const std::unique_ptr<kavelin_value, void (*)(kavelin_value*)> given(
        &value, [](kavelin_value* held) { Clear(*held); });
    return ToVariant(value);
}

kavelin_value OwnedValue(const Variant& content)
{
    kavelin_value value = kavelin_empty();
    if (const auto* object = std::get_if<HostObjectPtr>(&content)) {
        value = kavelin_of_object(*object ? CurrentThread().Share(*object) : 0);
        value.owned = 1;
        return value;
    }
    const Value& plain = std::get<Value>(content);
    value = std::visit(PlainContent(), plain.Get());
    if (!HoldsBytes(value))
        return value;
    const auto* decimal = plain.As<Decimal>();
    const std::string text = decimal ? decimal->ToText() : *plain.As<std::string>();
    value.as.text = {CopyBytes(text), text.size()};
    value.owned = 1;
    return value;
}

void Clear(kavelin_value& value) noexcept
{
    if (value.owned && HoldsBytes(value))
        std::free(const_cast<char*>(value.as.text.bytes));
    if (value.owned && value.kind == KAVELIN_OBJECT && value.as.object)
        ReleaseQuiet(value.as.object);
    value = kavelin_empty();
}

LentValue::LentValue(const Variant& content) : objLent(kavelin_empty())
{
    if (const auto* object = std::get_if<HostObjectPtr>(&content)) {
        objLent = kavelin_of_object(*object ? CurrentThread().Share(*object) : 0);
        return;
    }
    const Value& plain = std::get<Value>(content);
    objLent = std::visit(PlainContent(), plain.Get());
    if (const auto* text = plain.As<std::string>())
        objLent.as.text = {text->c_str(), text->size()};
    if (const auto* decimal = plain.As<Decimal>()) {
        strDecimal = decimal->ToText();
        objLent.as.text = {strDecimal.c_str(), strDecimal.size()};
    }
}

LentValue::~LentValue()
{
    if (objLent.kind == KAVELIN_OBJECT && objLent.as.object)
        ReleaseQuiet(objLent.as.object);
}

LentValue::LentValue(LentValue&& other) noexcept
    : strDecimal(std::move(other.strDecimal)), objLent(std::exchange(other.objLent, kavelin_empty()))
{
    if (objLent.kind == KAVELIN_DECIMAL)
        objLent.as.text.bytes = strDecimal.c_str();
}

bool LentValue::IsUnchanged(const kavelin_value& value) const
{
    if (value.kind != objLent.kind || value.owned)
        return false;
    switch (value.kind) {
        case KAVELIN_BOOLEAN: return value.as.boolean == objLent.as.boolean;
        case KAVELIN_INTEGER: return value.as.integer == objLent.as.integer;
        case KAVELIN_DATE: return value.as.date == objLent.as.date;
        case KAVELIN_OBJECT: return value.as.object == objLent.as.object;
        case KAVELIN_TEXT:
        case KAVELIN_DECIMAL:
            return value.as.text.bytes == objLent.as.text.bytes &&
                   value.as.text.length == objLent.as.text.length;
        case KAVELIN_DOUBLE:
            return std::memcmp(&value.as.number, &objLent.as.number, sizeof value.as.number) == 0;
        default: return true;
    }
}

std::string_view RequiredText(const char* text, std::string_view what)
{
    if (!text)
        throw BadArgument(std::string(what) + " is a null pointer.");
    if (!IsUtf8(text))
        throw BadArgument(std::string(what) + " is no UTF-8.");
    return text;
}

bool IsUtf8(std::string_view text)
{
    constexpr char32_t kReplacement = 0xFFFD;  // three bytes long where it is meant
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t first = position;
        if (NextCharacter(text, position) == kReplacement && position == first + 1)
            return false;
    }
    return true;
}

}  // namespace kavelin::capi
