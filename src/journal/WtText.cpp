#include "journal/WtText.h"

#include "frame/Text.h"

namespace kavelin {

std::string StripClause(const std::string& strWhere, std::string_view strMarker)
{
    const std::size_t first = strWhere.find(strMarker);
    if (first == strWhere.npos)
        return strWhere;
    const std::string tail = strWhere.substr(strWhere.rfind(strMarker) + 1);
    const std::size_t next = tail.find("And", 2);
    return strWhere.substr(0, first) + (next == tail.npos ? "" : tail.substr(next));
}

std::string SpecializeRdView(const std::string& strStatement, std::string_view strCode)
{
    std::string statement = strStatement;
    for (const char* name : {"rpt_rdrecordsIA870wt", "join Rdrecords", "join rdrecord"})
        statement = ReplaceAll(statement, name, name + std::string(strCode));
    return statement;
}

}  // namespace kavelin
