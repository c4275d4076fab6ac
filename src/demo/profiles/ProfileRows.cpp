#include "demo/profiles/ProfileRows.h"

#include "frame/Value.h"

#include <array>
#include <string>

namespace kavelin::demo {

namespace {

Value OrNull(const std::optional<std::string_view>& text)
{
    return text ? Value(*text) : Value::Null();
}

void WriteSettings(const Profile& profile, RowSink& sink)
{
    static constexpr std::string_view kColumns[] = {"cSysID", "cName", "cValue", "cDefault"};
    RowTable& out = sink.Open("AccInformation", kColumns);
    for (const Setting& setting : profile.settings)
        out.Add(std::array<Value, 4>{setting.system, setting.name, OrNull(setting.value),
                                     OrNull(setting.preset)});
}

void WriteRights(const Profile& profile, const Company& company, RowSink& sink)
{
    static constexpr std::string_view kColumns[] = {"cUser", "cKind", "cCode"};
    RowTable& out = sink.Open("Demo_UserRight", kColumns);
    for (const UserRight& right : profile.rights) {
        if (right.kind != kInventoryClassRight) {
            out.Add(std::array<Value, 3>{right.user, right.kind, right.code});
            continue;
        }
        for (const Item& item : company.items)
            if (item.itemClass.starts_with(right.code))
                out.Add(std::array<Value, 3>{right.user, "Inventory", item.id});
    }
}

}  // namespace

void WriteProfile(const Profile& profile, const Company& company, std::int64_t lines, std::uint64_t seed,
                  RowSink& sink)
{
    WriteSettings(profile, sink);

    static constexpr std::string_view kColumns[] = {"cName", "cValue"};
    RowTable& out = sink.Open("Demo_Profile", kColumns);
    const auto add = [&](std::string_view name, std::string_view value) {
        out.Add(std::array<Value, 2>{name, value});
    };
    add("profile", profile.name);
    add("seed", std::to_string(seed));
    add("lines", std::to_string(lines));
    add("language", profile.language);

    WriteRights(profile, company, sink);
}

}  // namespace kavelin::demo
