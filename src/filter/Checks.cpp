#include "filter/Checks.h"

#include "filter/CheckRules.h"
#include "filter/KeyMatch.h"
#include "frame/ModPub.h"

#include <span>
#include <string_view>

namespace kavelin {

namespace {

struct Message {
    enum class Kind { ResourceKey, Text };
    Kind kind;
    std::string_view text;
};

constexpr Message Key(std::string_view key)
{
    return {Message::Kind::ResourceKey, key};
}

constexpr Message Text(std::string_view text)
{
    return {Message::Kind::Text, text};
}

enum class Sound { None, Beep };

// A rule of a field. A field may have several: they are looked at in their order.
struct CheckedField {
    std::string_view key;
    bool (*passes)(CheckRun& run, FilterItem& item);
    Message message = {};
    Sound sound = Sound::None;
};

// clang-format off
constexpr CheckedField kPriceRules[] = {
    {"avgPrice", StaysInOneYear, Key("Orvo.IA.Orvo71.00384")},
};

constexpr CheckedField kEstimateRules[] = {
    {"ia_subsidiary.imonth", HasValue,            Text("必须录入查询月份"), Sound::Beep},
    {"ia_subsidiary.iyear",  TakesTheDialogsYear},
};

constexpr CheckedField kStockSummaryRules[] = {
    {"cInvCCode",      RemembersClass},
    {"cinvcode",       BothAreInClass,                Key("Orvo.IA.Orvo70.0410")},
    {"cAssComUnitNum", HasAtMostFourCharacters,       Key("Orvo.IA.Orvo70.0411")},
    {"vouEstate",      AsksForMoreThanDirectBusiness, Key("Orvo.IA.Orvo70.0413")},
    {"vouEstate",      HasValue,                      Key("Orvo.IA.Orvo70.0414")},
    {"rdGrade",        ReadsViewSelector},
};

constexpr CheckedField kGoodsSummaryRules[] = {
    {"Ia_Ensubsidiary.cBustype", IsSaleType,              Key("Orvo.IA.CHHSSQL.07206"), Sound::Beep},
    {"Inventory.cInvStd",        FromModelExists, Key("Orvo.IA.CHHSSQL.07217"), Sound::Beep},
    {"Inventory.cInvStd",        ToModelExists,   Key("Orvo.IA.CHHSSQL.07218"), Sound::Beep},
    {"Inventory.cComUnitCode",   UnitExists,              Key("Orvo.IA.CHHSSQL.07219"), Sound::Beep},
    {"iUnitNumber",              IsUnitNumber,            Key("Orvo.IA.CHHSSQL.07220"), Sound::Beep},
};
// clang-format on

void Refuse(const CheckedField& rule)
{
    if (rule.sound == Sound::Beep)
        CurrentPlatform().Beep();
    const std::string text(rule.message.text);
    Resources().ShowMessage(
        rule.message.kind == Message::Kind::ResourceKey ? Resources().GetResString(text) : text,
        kInformation);
}

bool RunCheck(CheckRun run, KeyMatch match, std::span<const CheckedField> rules)
{
    const auto list = run.filter.FilterList();
    const std::int32_t count = list->Count();
    for (std::int32_t position = 1; position <= count; ++position) {
        const auto item = list->Item(position);
        const std::string name = item->Name();
        for (const CheckedField& rule : rules) {
            if (!Matches(name, rule.key, match) || rule.passes(run, *item))
                continue;
            Refuse(rule);
            return false;
        }
    }
    return true;
}

bool AcceptEverything(ReportFilterObject& filter, DialogState& state)
{
    return RunCheck({filter, state}, KeyMatch::Exact, {});
}

}  // namespace

bool CheckFilterJournal(ReportFilterObject& filter, DialogState& state)
{
    return AcceptEverything(filter, state);
}

bool CheckFilterTurnover(ReportFilterObject& filter, DialogState& state)
{
    return AcceptEverything(filter, state);
}

bool CheckFilterABC(ReportFilterObject& filter, DialogState& state)
{
    return AcceptEverything(filter, state);
}

bool CheckFilterCostItem(ReportFilterObject& filter, DialogState& state)
{
    return AcceptEverything(filter, state);
}

bool CheckFilterDetailLedger(ReportFilterObject& filter, DialogState& state)
{
    return AcceptEverything(filter, state);
}

bool CheckFilterPrice(ReportFilterObject& filter, DialogState& state)
{
    return RunCheck({filter, state}, KeyMatch::Exact, kPriceRules);
}

bool CheckFilterEstimate(ReportFilterObject& filter, DialogState& state)
{
    return RunCheck({filter, state}, KeyMatch::AnyCase, kEstimateRules);
}

bool CheckFilterStockSummary(ReportFilterObject& filter, DialogState& state)
{
    return RunCheck({filter, state}, KeyMatch::Exact, kStockSummaryRules);
}

bool CheckFilterGoodsSummary(ReportFilterObject& filter, DialogState& state)
{
    return RunCheck({filter, state}, KeyMatch::Exact, kGoodsSummaryRules);
}

}  // namespace kavelin
