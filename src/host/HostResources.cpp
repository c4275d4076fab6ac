#include "host/HostResources.h"

#include "frame/Text.h"
#include "host/DataFiles.h"
#include "host/LocalText.h"

#include <nlohmann/json.hpp>

#include <map>
#include <string_view>
#include <utility>

namespace kavelin::host {

namespace {

using Texts = std::map<std::string, std::string, LessNoCase>;

struct LanguageTexts {
    Texts texts;
    std::map<std::string, Texts, LessNoCase> enums;
};

LanguageTexts Read(std::string_view language)
{
    const auto document = nlohmann::json::parse(DataFile("texts/" + std::string(language) + ".json"));
    LanguageTexts result;
    for (const auto& [key, text] : document.at("texts").items())
        result.texts.emplace(key, text.get<std::string>());
    for (const auto& [type, entries] : document.at("enums").items())
        for (const auto& [code, text] : entries.items())
            result.enums[type].emplace(code, text.get<std::string>());
    return result;
}

const LanguageTexts& TextsOf(std::string_view language)
{
    static const LanguageTexts chinese = Read(kChinese);
    static const LanguageTexts english = Read(kEnglish);
    return language == kEnglish ? english : chinese;
}

}  // namespace

HostResources::HostResources(std::string language, MessageSink onMessage)
    : strLanguage(std::move(language)), objOnMessage(std::move(onMessage))
{
}

void HostResources::SetLogin(std::shared_ptr<LoginContext> login)
{
    strLanguage = login->LanguageRegion();
}

std::string HostResources::GetResString(const std::string& key)
{
    const Texts& texts = TextsOf(strLanguage).texts;
    const auto found = texts.find(key);
    return found == texts.end() ? key : found->second;
}

std::string HostResources::GetEnumName(const std::string& type, const std::string& code)
{
    const auto& enums = TextsOf(strLanguage).enums;
    const auto entries = enums.find(type);
    if (entries == enums.end())
        return code;
    const auto found = entries->second.find(code);
    return found == entries->second.end() ? code : found->second;
}

std::string HostResources::GetEnumCode(const std::string& type, const std::string& text)
{
    const auto& enums = TextsOf(strLanguage).enums;
    const auto entries = enums.find(type);
    if (entries == enums.end())
        return text;
    // Long and short form of a code may be shown alike; the long one is what dialogs offer.
    const std::string* best = nullptr;
    for (const auto& [code, shown] : entries->second)
        if (EqualsNoCase(shown, text) && (best == nullptr || code.size() > best->size()))
            best = &code;
    return best == nullptr ? text : *best;
}

void HostResources::ShowMessage(const std::string& text, int icon)
{
    if (objOnMessage)
        objOnMessage({text, icon});
}

}  // namespace kavelin::host
