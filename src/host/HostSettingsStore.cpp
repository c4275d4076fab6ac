#include "host/HostSettingsStore.h"

#include "frame/Errors.h"
#include "frame/Text.h"

#include <nlohmann/json.hpp>

#include <fstream>
#include <iterator>

#include <unistd.h>

namespace kavelin::host {

namespace {

using nlohmann::json;

json ReadAll(const std::filesystem::path& file)
{
    std::ifstream stream(file);
    if (!stream)
        return json::object();
    try {
        json settings = json::parse(stream);
        if (settings.is_object())
            return settings;
    } catch (const json::parse_error& e) {
        throw Error("The settings file " + file.string() + " cannot be read: " + e.what());
    }
    throw Error("The settings file " + file.string() + " holds no object of settings.");
}

// The name as `object` spells it, or as it is asked for.
std::string NameIn(const json& object, const std::string& name)
{
    for (const auto& [key, value] : object.items())
        if (EqualsNoCase(key, name))
            return key;
    return name;
}

// The member of that name, made an object if it is none.
json& Level(json& object, const std::string& name)
{
    json& level = object[NameIn(object, name)];
    if (!level.is_object())
        level = json::object();
    return level;
}

}  // namespace

std::string HostSettingsStore::Read(const std::string& application, const std::string& section,
                                    const std::string& key, const std::string& byDefault)
{
    json level = ReadAll(strFile);
    for (const std::string& name : {application, section, key}) {
        const std::string known = NameIn(level, name);
        if (!level.is_object() || !level.contains(known))
            return byDefault;
        level = json(level.at(known));
    }
    return level.is_string() ? level.get<std::string>() : byDefault;
}

void HostSettingsStore::Write(const std::string& application, const std::string& section,
                              const std::string& key, const std::string& value)
{
    json settings = ReadAll(strFile);
    json& last = Level(Level(settings, application), section);
    last[NameIn(last, key)] = value;

    std::error_code error;
    std::filesystem::create_directories(strFile.parent_path(), error);
    const std::filesystem::path fresh = strFile.string() + "." + std::to_string(::getpid()) + ".new";
    std::ofstream stream(fresh);
    stream << settings.dump(2, ' ', false, json::error_handler_t::replace) << "\n";
    stream.close();
    if (stream)
        std::filesystem::rename(fresh, strFile, error);
    if (!stream || error)
        throw Error("The settings file " + strFile.string() + " cannot be written.");
}

}  // namespace kavelin::host
