// Values through automation, there and back.
#include "Check.h"
#include "FakeObject.h"

#include "com/Variants.h"
#include "frame/Errors.h"

#include <chrono>
#include <optional>

using namespace kavelin;
using namespace kavelin::test;
using com::FromAutomation;
using com::OwnedVariant;
using com::ToAutomation;

namespace {

DateTime At(int year, unsigned month, unsigned day, std::chrono::milliseconds time = {})
{
    using namespace std::chrono;
    return sys_days(std::chrono::year(year) / month / day) + time;
}

bool Returns(const Value& value)
{
    return std::get<Value>(FromAutomation(ToAutomation(Variant(value)).Get())) == value;
}

VARTYPE TypeOf(const Value& value)
{
    return ToAutomation(Variant(value)).Get().vt;
}

template <class Set>
Value Taken(VARTYPE type, Set set)
{
    VARIANT variant = {};
    set(variant);
    variant.vt = type;
    return std::get<Value>(FromAutomation(variant));
}

bool IsRefused(const VARIANT& variant)
{
    try {
        FromAutomation(variant);
    } catch (const ConversionError&) {
        return true;
    }
    return false;
}

}  // namespace

KAVELIN_TEST(ValuesReturnAsTheyWent)
{
    for (const Value& value :
         {Value(), Value::Null(), Value(true), Value(false), Value(0), Value(-2147483647 - 1),
          Value(2147483647), Value(1.5), Value(-0.1), Value(""), Value("存货核算 'a'"),
          Value("\xF0\xA0\x80\x80"), Value(std::string("a\0b", 3)), Value(*Decimal::FromText("12.50")),
          Value(*Decimal::FromText("-0.0001")), Value(At(2008, 7, 31)),
          Value(At(2008, 7, 31, std::chrono::milliseconds(52'200'123)))})
        CHECK(Returns(value));
}

KAVELIN_TEST(WholeNumbersBeyondThirtyTwoBitsGoAsDecimals)
{
    CHECK_EQUAL(TypeOf(std::int64_t{2147483647}), VT_I4);
    CHECK_EQUAL(TypeOf(std::int64_t{2147483648}), VT_DECIMAL);
    const OwnedVariant least = ToAutomation(Variant(Value(std::numeric_limits<std::int64_t>::min())));
    CHECK_EQUAL(ToText(std::get<Value>(FromAutomation(least.Get()))), "-9223372036854775808");
}

KAVELIN_TEST(DecimalsGoExactlyOrAsTheirText)
{
    const auto decimal = [](const char* text) { return Value(*Decimal::FromText(text)); };
    for (const char* text : {"79228162514264337593543950335", "-79228162514264337593543950335",
                             "7.9228162514264337593543950335", "0.0000000000000000000000000001"}) {
        CHECK_EQUAL(TypeOf(decimal(text)), VT_DECIMAL);
        CHECK(Returns(decimal(text)));
    }
    // Zeros at the end give way first.
    CHECK_EQUAL(TypeOf(decimal("1.50000000000000000000000000000000000")), VT_DECIMAL);
    for (const char* text : {"79228162514264337593543950336", "0.00000000000000000000000000001",
                             "-99999999999999999999999999999999999999"}) {
        CHECK_EQUAL(TypeOf(decimal(text)), VT_BSTR);
        CHECK_EQUAL(ToText(std::get<Value>(FromAutomation(ToAutomation(Variant(decimal(text))).Get()))),
                    text);
    }
}

KAVELIN_TEST(DatesCountTheTimeForwardsAlsoBeforeTheirEpoch)
{
    const struct {
        DateTime date;
        double automation;
    } cases[] = {
        {At(1899, 12, 30), 0.0},  {At(1899, 12, 30, std::chrono::hours(6)), 0.25},
        {At(1899, 12, 29), -1.0}, {At(1899, 12, 29, std::chrono::hours(6)), -1.25},
        {At(1900, 1, 1), 2.0},    {At(2008, 7, 31), 39660.0},
        {At(1, 1, 1), -693593.0}, {At(9999, 12, 31, std::chrono::hours(12)), 2958465.5},
    };
    for (const auto& c : cases) {
        const OwnedVariant given = ToAutomation(Variant(Value(c.date)));
        CHECK_EQUAL(given.Get().vt, VT_DATE);
        CHECK_EQUAL(given.Get().date, c.automation);
        CHECK(Returns(c.date));
    }
    for (const DateTime last : {At(1899, 12, 29, std::chrono::milliseconds(86'399'999)),
                                At(2008, 7, 31, std::chrono::milliseconds(86'399'999)),
                                At(1753, 1, 1, std::chrono::milliseconds(1))})
        CHECK(Returns(last));
}

KAVELIN_TEST(NumbersOfAllSizesAreTaken)
{
    CHECK(Taken(VT_I1, [](VARIANT& v) { v.cVal = static_cast<CHAR>(-7); }) == Value(-7));
    CHECK(Taken(VT_UI1, [](VARIANT& v) { v.bVal = 255; }) == Value(255));
    CHECK(Taken(VT_I2, [](VARIANT& v) { v.iVal = -32768; }) == Value(-32768));
    CHECK(Taken(VT_UI2, [](VARIANT& v) { v.uiVal = 65535; }) == Value(65535));
    CHECK(Taken(VT_UI4, [](VARIANT& v) { v.ulVal = 4294967295U; }) == Value(std::int64_t{4294967295}));
    CHECK(Taken(VT_INT, [](VARIANT& v) { v.intVal = -1; }) == Value(-1));
    CHECK(Taken(VT_I8, [](VARIANT& v) { v.llVal = -1; }) == Value(-1));
    CHECK_EQUAL(ToText(Taken(VT_UI8, [](VARIANT& v) { v.ullVal = ~0ULL; })), "18446744073709551615");
    CHECK(Taken(VT_R4, [](VARIANT& v) { v.fltVal = 0.5F; }) == Value(0.5));
    CHECK_EQUAL(ToText(Taken(VT_CY, [](VARIANT& v) { v.cyVal.int64 = -123456; })), "-12.3456");
    CHECK(Taken(VT_BSTR, [](VARIANT& v) { v.bstrVal = nullptr; }) == Value(""));
}

KAVELIN_TEST(WhatIsNoValueIsRefused)
{
    VARIANT variant = {};
    variant.vt = VT_ERROR;
    variant.scode = DISP_E_PARAMNOTFOUND;
    CHECK(IsRefused(variant));
    CHECK(com::IsMissing(variant));
    variant.scode = E_FAIL;
    CHECK(IsRefused(variant));
    CHECK(!com::IsMissing(variant));
    variant = {};
    variant.vt = VT_ARRAY | VT_I4;
    CHECK(IsRefused(variant));
    variant = {};
    variant.vt = VT_BYREF | VT_BSTR;
    CHECK(IsRefused(variant));
}

KAVELIN_TEST(ReferencesAreFollowed)
{
    VARIANT inner = {};
    inner.vt = VT_I2;
    inner.iVal = 5;
    VARIANT outer = {};
    outer.vt = VT_BYREF | VT_VARIANT;
    outer.pvarVal = &inner;
    CHECK(std::get<Value>(FromAutomation(outer)) == Value(5));
    VARIANT_BOOL flag = VARIANT_TRUE;
    outer.vt = VT_BYREF | VT_BOOL;
    outer.pboolVal = &flag;
    CHECK(std::get<Value>(FromAutomation(outer)) == Value(true));
}

KAVELIN_TEST(AnObjectReturnsAsTheSamePointer)
{
    FakeLife life;
    {
        const auto fake = MakeFake(life);
        VARIANT variant = {};
        variant.vt = VT_DISPATCH;
        variant.pdispVal = fake.Get();
        const Variant taken = FromAutomation(variant);
        CHECK_EQUAL(fake->References(), 2UL);
        const OwnedVariant given = ToAutomation(taken);
        CHECK_EQUAL(given.Get().vt, VT_DISPATCH);
        CHECK(given.Get().pdispVal == fake.Get());
        CHECK_EQUAL(fake->References(), 3UL);
        variant.pdispVal = nullptr;
        CHECK(std::get<HostObjectPtr>(FromAutomation(variant)) == nullptr);
        CHECK(ToAutomation(Variant(HostObjectPtr())).Get().pdispVal == nullptr);
    }
    CHECK_EQUAL(life.alive, 0);
}
