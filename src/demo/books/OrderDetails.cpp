#include "demo/books/OrderDetails.h"

#include "demo/books/Padded.h"
#include "demo/books/UserFields.h"

#include <string>

namespace kavelin::demo {

namespace {

// Apart from the purposes of the user fields.
enum Purpose : std::uint64_t { kNumber = 16, kContract, kMemo, kLine, kOperation, kCentre, kDemand };

constexpr std::string_view kMemos[] = {"加急", "分批到货", "与上月一并结算", "客户自提", "Part delivery"};
constexpr std::string_view kCentres[] = {"下料", "机加工", "装配", "喷涂"};
constexpr std::string_view kDemands[] = {"备货", "项目专用", "售后备件"};

bool IsOneIn(int count, const Document& document, Purpose purpose)
{
    return document.id != 0 && Mixed(document.id, purpose) % static_cast<std::uint64_t>(count) == 0;
}

bool HasOrder(const Document& document, std::string_view prefix)
{
    return document.order != 0 && document.type != nullptr && document.type->orderPrefix == prefix;
}

// All documents of an order have what belongs to it, or none has.
bool OrderIsOneIn(int count, const Document& document, Purpose purpose)
{
    return document.order != 0 && Mixed(document.order, purpose) % static_cast<std::uint64_t>(count) == 0;
}

Value Numbered(std::string_view prefix, std::int32_t number)
{
    std::string code(prefix);
    AppendPadded(code, number, 5);
    return code;
}

template <std::size_t Count>
Value OneOf(const std::string_view (&texts)[Count], std::uint64_t number)
{
    return texts[(number >> 8) % Count];
}

}  // namespace

Value BusinessNumber(const Document& document)
{
    return IsOneIn(6, document, kNumber) ? Numbered("YW-08-", document.id) : Value::Null();
}

Value ContractCode(const Document& document)
{
    return OrderIsOneIn(4, document, kContract) ? Numbered("HT-08-", document.order) : Value::Null();
}

Value Memo(const Document& document)
{
    return IsOneIn(9, document, kMemo) ? OneOf(kMemos, Mixed(document.id, kMemo)) : Value::Null();
}

Value OrderLine(const Document& document, std::int32_t line, std::string_view prefix)
{
    if (line == 0 || !HasOrder(document, prefix))
        return Value::Null();
    return static_cast<std::int32_t>(Mixed(line, kLine) % 6 + 1);
}

Value OperationLine(const Document& document, std::int32_t line)
{
    if (line == 0 || !HasOrder(document, "MO"))
        return Value::Null();
    return Numbered("OP-", static_cast<std::int32_t>(Mixed(line, kOperation) % 40 + 1) * 10);
}

Value WorkCentre(const Document& document)
{
    return HasOrder(document, "MO") ? OneOf(kCentres, Mixed(document.order, kCentre)) : Value::Null();
}

Value ProductionBatch(const Document& document)
{
    return HasOrder(document, "MO") && OrderIsOneIn(3, document, kCentre) ? Numbered("SC-08-", document.order)
                                                                          : Value::Null();
}

Value DemandCode(const Document& document)
{
    return HasOrder(document, "MO") && OrderIsOneIn(5, document, kDemand) ? Numbered("XQ-08-", document.order)
                                                                          : Value::Null();
}

Value DemandMemo(const Document& document)
{
    return DemandCode(document).IsNull() ? Value::Null() : OneOf(kDemands, Mixed(document.order, kDemand));
}

}  // namespace kavelin::demo
