// A text in the two languages that the host speaks.
#pragma once

#include <string>
#include <string_view>

namespace kavelin::host {

constexpr std::string_view kChinese = "zh-CN";
constexpr std::string_view kEnglish = "en-US";

struct LocalText {
    std::string chinese;
    std::string english;

    // English for "en-US", Chinese for everything else: that is the language of the reports' columns.
    const std::string& In(std::string_view language) const
    {
        return language == kEnglish ? english : chinese;
    }
};

}  // namespace kavelin::host
