#include "host/doctor/AccountNeeds.h"

#include "frame/Text.h"
#include "host/DataFiles.h"

namespace kavelin::host {

std::vector<NeededObject> ReadAccountNeeds(std::string_view text)
{
    std::vector<NeededObject> needs;
    for (const std::string& line : Split(text, "\n")) {
        const std::size_t colon = line.find(':');
        if (line.starts_with('#') || colon == line.npos)
            continue;
        const std::string names(Trim(line.substr(0, colon)));
        const std::string reports(Trim(line.substr(colon + 1)));
        if (!line.starts_with(' '))
            needs.push_back({names, reports, {}});
        else
            for (const std::string& name : Split(names, " "))
                needs.back().columns.push_back({name, reports});
    }
    return needs;
}

const std::vector<NeededObject>& AccountNeeds()
{
    static const std::vector<NeededObject> needs = ReadAccountNeeds(DataFile("needs.txt"));
    return needs;
}

}  // namespace kavelin::host
