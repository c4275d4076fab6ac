#include "host/doctor/ParameterSteps.h"

#include "frame/Errors.h"
#include "frame/Text.h"
#include "frame/Value.h"
#include "host/doctor/ErrorKinds.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::host {

namespace {

constexpr const char* kParameters = "parameters";

enum class Takes : std::uint8_t { OneOf, Date, Digits };

struct ParameterRule {
    std::string_view system;  // empty: read without one, so that it must stand once among all
    std::string_view name;
    bool needed;  // a report fails without it, or shows wrong figures
    Takes takes;
    std::string_view values;  // of OneOf, between bars
    std::string_view reports;
};

constexpr std::string_view kDocuments = "发出商品|销售出库单|销售发票";

// A parameter that is not needed may be missing or empty: what the reports take then is a sensible value.
constexpr ParameterRule kRules[] = {
    {"IA", "cValueStyle", true, Takes::OneOf, "按存货核算|按部门核算|按仓库核算",
     "estimate-balance journal price-analysis turnover"},
    {"IA", "dIAStartDate", true, Takes::Date, "", "dialogs price-analysis stock-summary"},
    {"IA", "dIAFirstDate", true, Takes::Date, "", "journal standard-cost-journal"},
    {"IA", "bSaleType", true, Takes::OneOf, "发出商品|销售出库单|销售发票|true|false",
     "dialogs journal stock-summary"},
    {"IA", "cEnDispAccountStyle", true, Takes::OneOf, kDocuments, "journal stock-summary"},
    {"IA", "cExSaleAccType", false, Takes::OneOf, kDocuments, "journal"},
    {"IA", "cEstimate", true, Takes::OneOf, "月初回冲|单到回冲|单到补差", "estimate-balance"},
    {"", "cDispLevel", true, Takes::Digits, "", "stock-summary"},
    {"AA", "iStrsQuanDecDgt", false, Takes::Digits, "", "estimate-balance turnover"},
    {"AA", "iExchRateDecDgt", false, Takes::Digits, "", "price-analysis"},
    {"OM", "dOMFirstDate", false, Takes::Date, "", "estimate-balance"},
    {"EX", "dEXFirstDate", false, Takes::Date, "", "journal"},
};

struct Parameter {
    std::string system, name, value;
};

std::string TextOf(const Value& value)
{
    return value.IsNull() ? "" : ToText(value);
}

std::vector<Parameter> ReadParameters(Connection& account)
{
    std::vector<Parameter> parameters;
    const auto rows = account.OpenRecordset("select cSysID, cName, cValue, cDefault from AccInformation",
                                            CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    for (; !rows->Eof(); rows->MoveNext()) {
        const std::string value = TextOf(rows->Field(2));
        parameters.push_back({std::string(Trim(TextOf(rows->Field(0)))),
                              std::string(Trim(TextOf(rows->Field(1)))),
                              value.empty() ? TextOf(rows->Field(3)) : value});
    }
    return parameters;
}

bool IsDigits(std::string_view text)
{
    return std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

// YYYY-MM-DD, since a statement compares it as a text.
bool IsIsoDate(const std::string& text)
{
    return text.size() == 10 && text[4] == '-' && text[7] == '-' && IsDate(Value(text));
}

bool Fits(const ParameterRule& rule, const std::string& value)
{
    switch (rule.takes) {
        case Takes::Date: return IsIsoDate(value);
        case Takes::Digits: return IsDigits(value);
        case Takes::OneOf: break;
    }
    const std::vector<std::string> values = Split(rule.values, "|");
    return std::ranges::any_of(values, [&](const std::string& one) { return EqualsNoCase(one, value); });
}

std::string WhatItTakes(const ParameterRule& rule)
{
    switch (rule.takes) {
        case Takes::Date: return "a date YYYY-MM-DD";
        case Takes::Digits: return "digits";
        case Takes::OneOf: break;
    }
    return ReplaceAll(rule.values, "|", ", ");
}

std::string Named(const ParameterRule& rule)
{
    return (rule.system.empty() ? "" : std::string(rule.system) + " ") + std::string(rule.name);
}

// What is wrong with the parameter; empty if nothing is.
std::string Complaint(const ParameterRule& rule, const std::vector<Parameter>& parameters)
{
    std::vector<const Parameter*> found;
    for (const Parameter& parameter : parameters)
        if (EqualsNoCase(parameter.name, rule.name) &&
            (rule.system.empty() || EqualsNoCase(parameter.system, rule.system)))
            found.push_back(&parameter);

    if (found.size() > 1)
        return fmt::format("{} stands {} times: {}", Named(rule), found.size(), rule.reports);
    const std::string value(found.empty() ? std::string_view() : Trim(found.front()->value));
    if (value.empty())
        return rule.needed ? fmt::format("{} is missing; it takes {}: {}", Named(rule), WhatItTakes(rule),
                                         rule.reports)
                           : "";
    return Fits(rule, value) ? ""
                             : fmt::format("{} is \"{}\"; it takes {}: {}", Named(rule), value,
                                           WhatItTakes(rule), rule.reports);
}

}  // namespace

DoctorStep ExamineParameters(Connection& account)
{
    try {
        const std::vector<Parameter> parameters = ReadParameters(account);
        std::vector<std::string> complaints;
        for (const ParameterRule& rule : kRules)
            if (std::string complaint = Complaint(rule, parameters); !complaint.empty())
                complaints.push_back(std::move(complaint));
        if (complaints.empty())
            return Passed(kParameters, fmt::format("The {} that reports read have values that they know.",
                                                   std::size(kRules)));
        DoctorStep step =
            Failed(kParameters,
                   fmt::format("{} of the {} parameters that reports read {} no sensible value.",
                               complaints.size(), std::size(kRules), complaints.size() == 1 ? "has" : "have"),
                   "Set them among the options of the inventory module, or in AccInformation.");
        step.details = std::move(complaints);
        return step;
    } catch (const CancelledError&) {
        throw;
    } catch (const DatabaseError& error) {
        if (KindOf(error.Get()) == ErrorKind::ConnectionLost)
            throw;
        return Skipped(kParameters, fmt::format("AccInformation can't be read: {}", error.what()));
    }
}

}  // namespace kavelin::host
