// Reading the host's data files member by member. For the .cpp files of templates only: it brings the JSON
// library along.
#pragma once

#include "frame/Errors.h"
#include "host/LocalText.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

namespace kavelin::host {

// The values of a member that takes one of a few words, the first where it is left out.
template <class T>
using Words = std::initializer_list<std::pair<std::string_view, T>>;

// An object of the file; `where` begins the messages about it.
class ObjectReader {
  public:
    ObjectReader(const nlohmann::json& object, std::string where)
        : objObject(object), strWhere(std::move(where))
    {
        if (!objObject.is_object())
            Fail("is no object");
    }

    [[noreturn]] void Fail(const std::string& what) const { throw Error(strWhere + " " + what + "."); }
    const std::string& Where() const { return strWhere; }
    void Name(const std::string& name) { strWhere += " " + name; }

    void RefuseMembersBut(std::initializer_list<std::string_view> known) const
    {
        for (const auto& [name, value] : objObject.items())
            if (std::ranges::find(known, name) == known.end())
                Fail("has the unknown member \"" + name + "\"");
    }

    bool Has(const char* name) const { return objObject.contains(name); }
    const nlohmann::json& Member(const char* name) const { return objObject.at(name); }
    std::string Text(const char* name) const { return objObject.value(name, std::string()); }
    bool Flag(const char* name) const { return objObject.value(name, false); }

    LocalText Caption() const
    {
        const nlohmann::json& caption = objObject.at("caption");
        return {caption.at(std::string(kChinese)).get<std::string>(),
                caption.at(std::string(kEnglish)).get<std::string>()};
    }

    template <class T>
    T Choice(const char* name, Words<T> words) const
    {
        if (!Has(name))
            return words.begin()->second;
        for (const auto& [word, value] : words)
            if (word == Text(name))
                return value;
        Fail("has the unknown " + std::string(name) + " \"" + Text(name) + "\"");
    }

  private:
    const nlohmann::json& objObject;
    std::string strWhere;
};

}  // namespace kavelin::host
