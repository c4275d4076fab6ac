// The shown texts of the host, beside what the library and the filter templates ask for.
#include "frame/Text.h"
#include "host/DataFiles.h"
#include "host/FilterTemplate.h"
#include "host/LocalText.h"
#include "host/Reports.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <string_view>

namespace kavelin::host {
namespace {

nlohmann::json TextsIn(std::string_view language)
{
    return nlohmann::json::parse(DataFile("texts/" + std::string(language) + ".json"));
}

using TextsByCode = std::map<std::string, std::string, LessNoCase>;

TextsByCode EnumOf(const nlohmann::json& texts, std::string_view type)
{
    TextsByCode entries;
    for (const auto& [name, codes] : texts.at("enums").items())
        if (EqualsNoCase(name, type))
            for (const auto& [code, text] : codes.items())
                entries.emplace(code, text.get<std::string>());
    return entries;
}

// Every text of the form "Orvo." and more that the sources hold, with the file that asks for it first.
std::map<std::string, std::string> KeysInTheSources()
{
    const std::regex pattern(R"rx("(Orvo\.[A-Za-z0-9.]+)")rx");
    std::map<std::string, std::string> keys;
    for (const auto& file : std::filesystem::recursive_directory_iterator(KAVELIN_SOURCE_DIR "/src")) {
        if (file.path().extension() != ".cpp" && file.path().extension() != ".h")
            continue;
        std::ifstream stream(file.path());
        const std::string source((std::istreambuf_iterator<char>(stream)), {});
        for (std::sregex_iterator match(source.begin(), source.end(), pattern), end; match != end; ++match)
            keys.emplace((*match)[1], file.path().filename());
    }
    return keys;
}

TEST(ShownTexts, StandInBothLanguagesForEveryKeyInTheSources)
{
    const auto keys = KeysInTheSources();
    EXPECT_GE(keys.size(), 20u);
    for (const auto& language : {kChinese, kEnglish}) {
        const nlohmann::json document = TextsIn(language);
        TextsByCode texts;
        for (const auto& [key, text] : document.at("texts").items())
            texts.emplace(key, text.get<std::string>());
        for (const auto& [key, file] : keys)
            EXPECT_TRUE(texts.contains(key) && !texts[key].empty())
                << language << " " << key << " of " << file;
    }
}

TEST(ShownTexts, HaveTheSameKeysAndCodesInBothLanguages)
{
    const auto names = [](const nlohmann::json& texts) {
        std::set<std::string> result;
        for (const auto& [key, text] : texts.at("texts").items())
            result.insert(key);
        for (const auto& [type, codes] : texts.at("enums").items())
            for (const auto& [code, text] : codes.items())
                result.insert(type + " " + code);
        return result;
    };
    EXPECT_EQ(names(TextsIn(kChinese)), names(TextsIn(kEnglish)));
}

const std::string kBusinessTypes =
    "普通采购|委外加工|受托代销|普通销售|委托代销|分期收款|直运采购|直运销售|出口发票|直运出口发票|领料|假退料|限额领料|"
    "直接供应|配比出库|委外发料|委外倒冲|委外盘点补差|生产倒冲|生产盘点补差|成品入库|调拨入库|调拨出库|组装入库|组装出库|"
    "拆卸入库|拆卸出库|转换入库|转换出库|盘盈入库|盘亏出库|降级入库|不合格品|其他入库|其他出库|签回损失|备件领用|"
    "服务配件领用|一般贸易进口|进料加工|配件出库|配件退库";

const std::string kMonths = "1月|2月|3月|4月|5月|6月|7月|8月|9月|10月|11月|12月";

TEST(ShownTexts, StandForEveryCodeThatTheLibraryShows)
{
    const struct {
        std::string_view type;
        std::string codes;
    } cases[] = {
        {"IA.FltField", "仓库编码|仓库名称|部门编码|部门名称|单据编码|单据类型"},
        {"IA.Field", "仓库名称|部门编码|部门名称"},
        {"IA.BillforVch",
         "采购入库单(报销记账)|采购入库单(暂估记账)|蓝字回冲单(报销)|蓝字回冲单(暂估)|"
         "代管挂账确认单(报销记账)|代管挂账确认单(暂估记账)"},
        {"IA.RepWt", "已记账单据|未记账单据"},
        {"IA.Bustype", kBusinessTypes},
        {"IA.Month", kMonths},
        {"IA.Oth", kMonths},
    };
    for (const auto& language : {kChinese, kEnglish}) {
        const nlohmann::json texts = TextsIn(language);
        for (const auto& c : cases) {
            const TextsByCode entries = EnumOf(texts, c.type);
            for (const std::string& code : Split(c.codes, "|")) {
                ASSERT_TRUE(entries.contains(code)) << language << " " << c.type << " " << code;
                EXPECT_FALSE(entries.at(code).empty()) << language << " " << c.type << " " << code;
                EXPECT_EQ(entries.at(code) == code, language == kChinese) << c.type << " " << code;
            }
        }
    }
}

// The dialog sets some values by the text that it shows for them.
TEST(ShownTexts, AreTheCaptionsOfTheListEntriesThatTheyStandFor)
{
    const nlohmann::json chinese = TextsIn(kChinese), english = TextsIn(kEnglish);
    int checked = 0;
    for (const Report& report : AllReports())
        for (const FilterField& field : TemplateOf(report.name).fields)
            for (const ListEntry& entry : field.entries)
                for (const std::string_view type : {"IA.BusType", "IA.RepWt"})
                    if (const auto entries = EnumOf(english, type); entries.contains(entry.value)) {
                        ++checked;
                        EXPECT_EQ(entry.caption.english, entries.at(entry.value)) << field.key;
                        EXPECT_EQ(entry.caption.chinese, EnumOf(chinese, type).at(entry.value)) << field.key;
                    }
    EXPECT_GE(checked, 10);
}

}  // namespace
}  // namespace kavelin::host
