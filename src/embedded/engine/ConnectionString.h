// `Embedded Account=/data/demo.kavelin;Locale=zh-CN;Memory=512`
#pragma once

#include "embedded/engine/Limits.h"

#include <string>
#include <string_view>

namespace kavelin::embedded {

struct ConnectionSettings {
    std::string account;  // path of the account's file
    std::string locale = "zh-CN";
    Limits limits;
};

// Keys in any case and order, each value as it is without the blanks at its ends, or quoted by ' or " with
// the quote inside doubled. User and password keys are read over. Throws ConnectionError for a key that is
// not known and for a text that is no such list; values never stand in the message.
ConnectionSettings ReadConnectionString(std::string_view text);

}  // namespace kavelin::embedded
