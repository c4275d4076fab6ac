#include "demo/books/UserFields.h"

#include "demo/Random.h"

#include <iterator>

namespace kavelin::demo {

namespace {

constexpr std::uint64_t kWhether = 1, kText = 2, kDay = 3, kNumber = 4, kCount = 5;

constexpr std::string_view kHeadTexts[] = {"加急", "常规", "合同附件", "代垫运费", "Priority"};
constexpr std::string_view kLineTexts[] = {"A级", "B级", "免检", "抽检", "Sample"};

template <std::size_t Count>
Value OneOf(const std::string_view (&texts)[Count], std::uint64_t number)
{
    return texts[number % Count];
}

Value DayAfter(std::chrono::sys_days day, std::uint64_t number)
{
    return DateTime(day + std::chrono::days(number % 45));
}

Value Small(std::uint64_t number)
{
    return static_cast<double>(number % 20000) / 8;
}

Value Count(std::uint64_t number)
{
    return static_cast<std::int32_t>(number % 100);
}

bool LineHas(const Document& document, std::int32_t line)
{
    return line != 0 && HasUserFields(document);
}

}  // namespace

std::uint64_t Mixed(std::int64_t identifier, std::uint64_t purpose)
{
    return Random(static_cast<std::uint64_t>(identifier) * 64 + purpose).Next();
}

bool HasUserFields(const Document& document)
{
    return document.id != 0 && Mixed(document.id, kWhether) % 5 == 0;
}

Value HeadText(const Document& document)
{
    return HasUserFields(document) ? OneOf(kHeadTexts, Mixed(document.id, kText)) : Value::Null();
}

Value HeadDay(const Document& document)
{
    return HasUserFields(document) ? DayAfter(document.day, Mixed(document.id, kDay)) : Value::Null();
}

Value HeadNumber(const Document& document)
{
    return HasUserFields(document) ? Small(Mixed(document.id, kNumber)) : Value::Null();
}

Value HeadCount(const Document& document)
{
    return HasUserFields(document) ? Count(Mixed(document.id, kCount)) : Value::Null();
}

Value LineText(const Document& document, std::int32_t line)
{
    return LineHas(document, line) ? OneOf(kLineTexts, Mixed(line, kText)) : Value::Null();
}

Value LineNumber(const Document& document, std::int32_t line)
{
    return LineHas(document, line) ? Small(Mixed(line, kNumber)) : Value::Null();
}

Value LineCount(const Document& document, std::int32_t line)
{
    return LineHas(document, line) ? Count(Mixed(line, kCount)) : Value::Null();
}

Value LineDay(const Document& document, std::int32_t line)
{
    return LineHas(document, line) ? DayAfter(document.day, Mixed(line, kDay)) : Value::Null();
}

}  // namespace kavelin::demo
